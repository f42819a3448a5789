#include "suite/desktop/look/UserSettings.h"

#include <QDir>
#include <QSettings>

namespace suite::desktop {

QString DatabaseChoice::serverTarget() const { return QStringLiteral("%1/%2:%3").arg(host).arg(port).arg(path); }

namespace settings {

namespace {

QString folder(const char* variable, const char* belowHome) {
    const auto named = qEnvironmentVariable(variable);
    const auto base =
        QDir::isAbsolutePath(named) ? named : QDir::homePath() + QLatin1Char('/') + QLatin1String(belowHome);
    return base + QStringLiteral("/orcreal/");
}

QSettings configuration() {
    return QSettings(folder("XDG_CONFIG_HOME", ".config") + QStringLiteral("janela.ini"), QSettings::IniFormat);
}

QSettings windows() {
    return QSettings(folder("XDG_STATE_HOME", ".local/state") + QStringLiteral("janelas.ini"), QSettings::IniFormat);
}

constexpr const char* Kinds[] = {"demonstracao", "arquivo", "servidor"};

} // namespace

bool hasDatabase() { return !value("banco/tipo").isEmpty(); }

DatabaseChoice database() {
    DatabaseChoice choice;
    for (int kind = 0; kind < 3; ++kind)
        if (value("banco/tipo") == QLatin1String(Kinds[kind]))
            choice.kind = static_cast<DatabaseChoice::Kind>(kind);
    choice.file = value("banco/arquivo");
    choice.host = value("banco/servidor");
    choice.port = value("banco/porta", QString::number(choice.port)).toInt();
    choice.path = value("banco/caminho");
    choice.user = value("banco/usuario", choice.user);
    return choice;
}

void keepDatabase(const DatabaseChoice& choice) {
    keepValue("banco/tipo", QLatin1String(Kinds[static_cast<int>(choice.kind)]));
    keepValue("banco/arquivo", choice.file);
    keepValue("banco/servidor", choice.host);
    keepValue("banco/porta", QString::number(choice.port));
    keepValue("banco/caminho", choice.path);
    keepValue("banco/usuario", choice.user);
}

QString value(const char* name, const QString& otherwise) {
    return configuration().value(QLatin1String(name), otherwise).toString();
}

void keepValue(const char* name, const QString& value) { configuration().setValue(QLatin1String(name), value); }

QByteArray state(const char* name) { return windows().value(QLatin1String(name)).toByteArray(); }

void keepState(const char* name, const QByteArray& state) { windows().setValue(QLatin1String(name), state); }

} // namespace settings

} // namespace suite::desktop
