#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace velmora {

/// What a question before something risky says.
struct AlertTexts {
    QString title;
    QString message;
    QString cancel;      ///< the way back: Escape, and Return unless the other button has the focus
    QString destructive; ///< goes ahead
};

/// Asks in a sheet over the window of `presenter`; `onConfirm` runs when the user goes ahead, after
/// the sheet was dismissed.
void presentAlert(QWidget& presenter, const AlertTexts& texts, std::function<void()> onConfirm);

} // namespace velmora
