#pragma once

#include <QByteArray>
#include <QString>

namespace suite::desktop {

// Which database the user works on. The password is never kept.
struct DatabaseChoice {
    enum class Kind { Demo, File, Server };
    Kind kind = Kind::Demo;
    QString file;
    QString host;
    int port = 3050;
    QString path;
    QString user = QStringLiteral("SYSDBA");
    QString password;

    QString serverTarget() const; // host/port:path
};

// What the user has chosen, in XDG_CONFIG_HOME, and how the windows stood, in XDG_STATE_HOME. What cannot be written is
// not kept; nobody is told.
namespace settings {

bool hasDatabase(); // whether one has been chosen before
DatabaseChoice database();
void keepDatabase(const DatabaseChoice& choice);
QString value(const char* name, const QString& otherwise = {});
void keepValue(const char* name, const QString& value);
QByteArray state(const char* name); // empty: none
void keepState(const char* name, const QByteArray& state);

} // namespace settings

} // namespace suite::desktop
