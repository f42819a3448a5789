#pragma once

#include "host/Lookup.h"

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace suite::desktop {

class ElidedLabel;

// A search field: code, button of the search (F4, Alt+Down or a double click), and beside them what the lookup says of
// its choice. Delete in an empty code drops the choice.
class LookupEdit : public QWidget {
    Q_OBJECT

  public:
    LookupEdit(host::TZTLookupEx& lookup, QWidget* parent);

    host::TZTLookupEx& lookup() const { return lookup_; }
    // Shows what the lookup holds.
    void follow();
    // Gives a code that was typed to the lookup. False when it is unknown and the user has been told so: he is to see
    // it again before he goes on. Failures pass.
    bool commit();
    // Only the button: for a search that fills other fields.
    void setButtonOnly();
    QLineEdit& code() const { return *code_; }
    // What stands beside the code, in full.
    QString description() const;

  Q_SIGNALS:
    void searchAsked();
    void dropAsked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    host::TZTLookupEx& lookup_;
    QLineEdit* code_;
    QToolButton* search_;
    ElidedLabel* description_;
    bool typed_ = false; // and not yet given to the lookup
};

} // namespace suite::desktop
