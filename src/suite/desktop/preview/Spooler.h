#pragma once

#include <QString>
#include <QStringList>

namespace suite::desktop {

// The system's print service, through its own commands.
namespace spooler {

struct Job {
    QString printer;
    QString title;
    int copies = 1;
    int first = 1; // page
    int last = 1;
};

QStringList printers(); // the usual one first; empty where there is no service
// Hands a document over. Throws base::TFalha with what the service said.
void print(const QString& file, const Job& job);

} // namespace spooler

} // namespace suite::desktop
