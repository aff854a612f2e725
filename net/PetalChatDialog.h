#pragma once
// Draws the chat form over its picture and forwards the user's typing, keys, clicks and moves
// of the focus; the form decides what each key does.
#include "platform/qt/FormDialog.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace petal {

class FrmPetalChat;
class PictureStore;

class PetalChatDialog : public FormDialog {
    Q_OBJECT
public:
    PetalChatDialog(FrmPetalChat& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void sync() override;

private:
    bool keyPressed(QObject* watched, int ascii);
    QWidget* focusWidget(int control) const;

    FrmPetalChat& form_;
    PictureStore& pictures_;
    QWidget* picture_;
    QListWidget* list_;
    QLineEdit* text_;
    QPushButton* send_;
    QPushButton* close_;
    int shownTop_ = 0;  // the top index last asked of the list
};

}  // namespace petal
