#pragma once

#include "host/Interacao.h"

#include <QDialog>
#include <QString>
#include <QStringList>
#include <QStyle>

class QPushButton;

namespace suite::desktop {

struct MessageContent {
    QStyle::StandardPixmap icon = QStyle::SP_MessageBoxInformation;
    QString title;
    QString text;        // plain, with its line breaks
    QStringList buttons; // the answers of host::TResposta in their order
    int defaultCode = host::TResposta::Primeira;
    QString details; // folded away; empty: none
};

// A message or a question. Enter gives the default answer, Esc the last; a button's first free letter gives its own.
class MessageDialog : public QDialog {
  public:
    MessageDialog(const MessageContent& content, QWidget* parent);

    // Shows it and returns the code of the answer.
    int ask();
    void done(int result) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void addDetails(const QString& details);
    void addButtons(const MessageContent& content);

    QString text_;
    QString details_;
    QList<QPushButton*> buttons_;
    int escape_ = host::TResposta::Primeira;
    int answer_ = host::TResposta::Primeira;
};

} // namespace suite::desktop
