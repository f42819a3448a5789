#pragma once

#include "suite/desktop/look/UserSettings.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace suite::desktop {

// Which database to open: the demo company, a file, or a server. Offers the choice it is given.
class StartDialog : public QDialog {
  public:
    StartDialog(const DatabaseChoice& offered, bool demoExists, QWidget* parent = nullptr);

    DatabaseChoice choice() const;
    bool openDirectly() const;
    void accept() override; // refuses a choice that lacks something, and says what

  private:
    QWidget* makeFile(const DatabaseChoice& offered);
    QWidget* makeServer(const DatabaseChoice& offered);
    void follow();

    QButtonGroup* kinds_;
    QWidget *fileFields_, *serverFields_;
    QLineEdit *file_, *host_, *path_, *user_, *password_;
    QSpinBox* port_;
    QCheckBox* direct_;
    QLabel* refusal_;
};

} // namespace suite::desktop
