#pragma once

#include <QDate>
#include <QLineEdit>

class QAction;

namespace suite::desktop {

// A date under the mask dd/mm/aaaa, typed by digits alone. A day and month without leading zeros and a year of two
// digits are completed when the field is left. PageUp and PageDown go by months, with Ctrl by years, "+" and "-" by
// days, Ctrl+Home and Ctrl+End to the ends of the month; F4, Alt+Down or the button open a calendar.
class DateEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    // The text under its mask; blank is "  /  /    ".
    QString shown() const { return displayText(); }
    void setShown(const QString& text);
    // Writes out what stands for a date in short; anything else stays as typed.
    void complete();
    void openCalendar();

  Q_SIGNALS:
    void edited(const QString& text); // by the user

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool step(const QKeyEvent& event);
    void choose(const QDate& date);
    QAction* calendar_;
};

// A date as users write it: digits with leading zeros or without, a year of two digits in the century that brings it
// within fifty years of today. Invalid for anything else.
QDate dateOf(const QString& text, const QDate& today);
// Months later or earlier; the last day of a month stays a last day.
QDate byMonths(const QDate& date, int months);

} // namespace suite::desktop
