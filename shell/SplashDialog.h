#pragma once
// Draws the splash: two pictures of the deck, the title, version and platform, the credits, and
// in the About box the hint that closes it. Clicks, keys and mouse moves go to the model.
#include <array>

#include "platform/qt/FormDialog.h"

class QFrame;
class QLabel;

namespace petal {

class FrmSplash;
class PictureStore;
class QtHost;

class SplashDialog : public FormDialog {
    Q_OBJECT
public:
    SplashDialog(FrmSplash& form, QtHost& host, PictureStore& pictures, QWidget* parent);
    void reject() override;

    QLabel* closeHint() const { return close_; }
    QFrame* surface() const { return frame1_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void sync() override;
    QWidget* buildCredits(QWidget* parent);
    // A child with a handler of its own takes moves and clicks through the event filter; one
    // without keeps them from reaching the surface beneath, whose handlers would run instead.
    void handledHere(QWidget* child);
    void stopsEvents(QWidget* child);

    FrmSplash& form_;
    QFrame* frame1_;
    std::array<QLabel*, 6> label1_{};
    QLabel* close_;
};

}  // namespace petal
