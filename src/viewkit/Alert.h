#pragma once

#include <QMessageBox>
#include <functional>

namespace velmora {

/// What a question before something risky says.
struct AlertTexts {
    QString title;
    QString message;
    QString cancel;      ///< the way back: Escape, and Return unless the other button has the focus
    QString destructive; ///< goes ahead
};

/// Asks over the window of `presenter`, which gets no input meanwhile; `onConfirm` runs when the
/// user goes ahead, after the question has gone. The actions of the window act in it too.
void presentAlert(QWidget& presenter, const AlertTexts& texts, std::function<void()> onConfirm);

/// A message of `title` over `message`, yet without buttons, for `window` or, without one, for the
/// program. It destroys itself when it is closed.
QMessageBox* makeMessage(const QString& title, const QString& message, QWidget* window);

} // namespace velmora
