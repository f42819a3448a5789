#include "suite/desktop/look/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace suite::desktop {

namespace {

struct Colours {
    QRgb window, text, base, alternate, button, highlight, highlighted, link, placeholder;
};

QPalette paletteOf(const Colours& c) {
    QPalette palette(QColor(c.button), QColor(c.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, QColor(c.text));
    palette.setColor(QPalette::Base, QColor(c.base));
    palette.setColor(QPalette::AlternateBase, QColor(c.alternate));
    palette.setColor(QPalette::ToolTipBase, QColor(c.base));
    palette.setColor(QPalette::Highlight, QColor(c.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(c.highlighted));
    palette.setColor(QPalette::Link, QColor(c.link));
    palette.setColor(QPalette::PlaceholderText, QColor(c.placeholder));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(c.placeholder));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(c.placeholder));
    return palette;
}

QPalette lightPalette() {
    return paletteOf({0xf3f4f6, 0x1d2430, 0xffffff, 0xf6f8fb, 0xe9ebef, 0x2f6fb5, 0xffffff, 0x1f5fa8, 0x767d88});
}

QPalette darkPalette() {
    return paletteOf({0x25282d, 0xe6e8eb, 0x1b1d21, 0x22252a, 0x32363d, 0x3d7fc9, 0xffffff, 0x7db4f2, 0x8b929c});
}

// The style frames a field darker than the window, which black has no room for: black are the fields.
QPalette contrastPalette() {
    return paletteOf({0x303030, 0xffffff, 0x000000, 0x1a1a1a, 0x303030, 0xffd800, 0x000000, 0x66ccff, 0xb8b8b8});
}

} // namespace

QString captionOf(Look look) {
    switch (look) {
    case Look::Light:
        return QStringLiteral("&Claro");
    case Look::Dark:
        return QStringLiteral("&Escuro");
    case Look::Contrast:
        return QStringLiteral("&Alto contraste");
    default:
        return QStringLiteral("Do &sistema");
    }
}

QString nameOf(Look look) {
    switch (look) {
    case Look::Light:
        return QStringLiteral("claro");
    case Look::Dark:
        return QStringLiteral("escuro");
    case Look::Contrast:
        return QStringLiteral("alto-contraste");
    default:
        return QStringLiteral("sistema");
    }
}

Look lookNamed(const QString& name) {
    for (const auto look : Looks)
        if (nameOf(look) == name)
            return look;
    return Look::System;
}

void apply(Look look) {
    static const QString systemStyle = QApplication::style()->objectName();
    if (look == Look::System) {
        QApplication::setStyle(systemStyle);
        QApplication::setPalette(QPalette());
        return;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(look == Look::Light  ? lightPalette()
                             : look == Look::Dark ? darkPalette()
                                                  : contrastPalette());
}

} // namespace suite::desktop
