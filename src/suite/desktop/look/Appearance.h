#pragma once

#include <QString>
#include <QStringList>

namespace suite::desktop {

// The looks of the program: the system's own, and three of ours.
enum class Look { System, Light, Dark, Contrast };
inline constexpr Look Looks[] = {Look::System, Look::Light, Look::Dark, Look::Contrast};

QString captionOf(Look look);
QString nameOf(Look look);           // as it is kept in the user's settings
Look lookNamed(const QString& name); // System for an unknown name
void apply(Look look);               // to the whole program

} // namespace suite::desktop
