#include "suite/desktop/form/DateEdit.h"

#include "suite/desktop/look/Icons.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace suite::desktop {

namespace {

const QString Form = QStringLiteral("dd/MM/yyyy");

QDate lastOfMonth(const QDate& date) { return {date.year(), date.month(), date.daysInMonth()}; }

} // namespace

QDate dateOf(const QString& text, const QDate& today) {
    const auto parts = text.split(QLatin1Char('/'));
    if (parts.size() != 3)
        return {};
    int numbers[3];
    for (int i = 0; i < 3; ++i) {
        bool number = false;
        numbers[i] = parts[i].trimmed().toInt(&number);
        if (!number)
            return {};
    }
    auto year = numbers[2];
    const auto digits = parts[2].trimmed().size();
    if (digits == 3)
        return {};
    if (digits < 3) {
        constexpr int Century = 100;
        year += today.year() / Century * Century;
        if (year > today.year() + Century / 2)
            year -= Century;
        else if (year < today.year() - Century / 2)
            year += Century;
    }
    return {year, numbers[1], numbers[0]};
}

QDate byMonths(const QDate& date, int months) {
    const auto moved = date.addMonths(months);
    return date == lastOfMonth(date) ? lastOfMonth(moved) : moved;
}

DateEdit::DateEdit(QWidget* parent) : QLineEdit(parent) {
    setInputMask(QStringLiteral("00/00/0000"));
    auto* calendar = addAction(icon(Symbol::Calendar), QLineEdit::TrailingPosition);
    calendar->setToolTip(QStringLiteral("Calendário (F4)"));
    connect(calendar, &QAction::triggered, this, &DateEdit::openCalendar);
    connect(this, &QLineEdit::textEdited, this, [this] { Q_EMIT edited(shown()); });
    constexpr int Characters = 14; // date and button
    setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * Characters);
}

void DateEdit::setShown(const QString& text) {
    if (text != shown())
        setText(text);
}

void DateEdit::complete() {
    const auto before = shown();
    if (const auto date = dateOf(before, QDate::currentDate()); date.isValid() && date.toString(Form) != before)
        choose(date);
}

void DateEdit::choose(const QDate& date) {
    setText(date.toString(Form));
    Q_EMIT edited(shown());
}

bool DateEdit::step(const QKeyEvent& event) {
    const bool control = event.modifiers() & Qt::ControlModifier;
    const auto today = QDate::currentDate();
    const auto typed = dateOf(shown(), today);
    // From nothing the first step is to today.
    const auto from = typed.isValid() ? typed : today;
    const auto move = [&](const QDate& date) {
        choose(typed.isValid() ? date : today);
        selectAll();
        return true;
    };
    constexpr int Year = 12;
    switch (event.key()) {
    case Qt::Key_PageUp:
        return move(byMonths(from, control ? -Year : -1));
    case Qt::Key_PageDown:
        return move(byMonths(from, control ? Year : 1));
    case Qt::Key_Plus:
        return move(from.addDays(1));
    case Qt::Key_Minus:
        return move(from.addDays(-1));
    case Qt::Key_Home:
        return control && move(QDate(from.year(), from.month(), 1));
    case Qt::Key_End:
        return control && move(lastOfMonth(from));
    default:
        return false;
    }
}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (altDown || (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier))
        openCalendar();
    else if (!step(*event))
        QLineEdit::keyPressEvent(event);
}

void DateEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && event->reason() != Qt::PopupFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason)
        selectAll();
}

void DateEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (text() == QLatin1String("//"))
        setCursorPosition(0);
}

void DateEdit::openCalendar() {
    if (!isEnabled())
        return;
    auto* frame = new QFrame(this, Qt::Popup);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setFrameShape(QFrame::StyledPanel);
    auto* month = new QCalendarWidget(frame);
    month->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    month->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const auto typed = dateOf(shown(), QDate::currentDate());
    month->setSelectedDate(typed.isValid() ? typed : QDate::currentDate());
    auto* room = new QVBoxLayout(frame);
    room->setContentsMargins(1, 1, 1, 1);
    room->addWidget(month);
    const auto pick = [this, frame](const QDate& date) {
        choose(date);
        frame->close();
        selectAll();
    };
    connect(month, &QCalendarWidget::activated, this, pick);
    connect(month, &QCalendarWidget::clicked, this, pick);
    frame->adjustSize();
    frame->move(mapToGlobal(QPoint(0, height())));
    frame->show();
    month->setFocus();
}

} // namespace suite::desktop
