#include "suite/desktop/preview/Spooler.h"

#include "base/Falhas.h"
#include "suite/desktop/look/Text.h"

#include <QProcess>

namespace suite::desktop::spooler {

namespace {

constexpr int Patience = 15'000; // milliseconds

struct Answer {
    bool done = false;
    QString out;
    QString error;
};

Answer ask(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(Patience))
        return {false, {}, process.errorString()};
    return {process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed(),
            QString::fromLocal8Bit(process.readAllStandardError()).trimmed()};
}

} // namespace

QStringList printers() {
    auto names = ask(QStringLiteral("lpstat"), {QStringLiteral("-e")}).out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const auto usual = ask(QStringLiteral("lpstat"), {QStringLiteral("-d")}).out.section(QStringLiteral(": "), -1);
    if (names.removeOne(usual))
        names.prepend(usual);
    return names;
}

void print(const QString& file, const Job& job) {
    const auto answer =
        ask(QStringLiteral("lp"), {QStringLiteral("-d"), job.printer, QStringLiteral("-n"), QString::number(job.copies),
                                   QStringLiteral("-t"), job.title, QStringLiteral("-P"),
                                   QStringLiteral("%1-%2").arg(job.first).arg(job.last), QStringLiteral("--"), file});
    if (!answer.done)
        throw base::TFalha("A impressora " + toUtf8(job.printer) +
                           " não recebeu o relatório: " + toUtf8(answer.error.isEmpty() ? answer.out : answer.error));
}

} // namespace suite::desktop::spooler
