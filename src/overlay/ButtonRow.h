#pragma once

#include "model/ShortcutButton.h"

#include <QList>
#include <QWidget>
#include <functional>
#include <optional>

namespace velmora {

class MenuButton;
class ShortcutButtonView;

/// Carries an action out.
using ExecuteAction = std::function<void(const ShortcutAction&)>;

/// A row of bar buttons, vertically centred, 6 points apart, at their natural widths.
class ButtonRow : public QWidget {
    Q_OBJECT
public:
    /// What a row shows.
    struct RootView {
        bool hasMenuButton = false; ///< in front of the others
        QList<ShortcutButton> shortcuts;
        ExecuteAction execute;
    };

    static constexpr int spacing = 6;

    explicit ButtonRow(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Shows `content` and takes its natural width. A button keeps its view, hover state included,
    /// for as long as its id is in the list. Only the list may change from call to call.
    void setRootView(const RootView& content);

    /// The buttons in order.
    const QList<ShortcutButtonView*>& buttons() const { return buttons_; }
    /// Sets PlainButton::setDragThreshold() on all buttons that are there.
    void setDragThreshold(std::optional<double> threshold);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ShortcutButtonView* makeButton(const ShortcutButton& shortcut, const ExecuteAction& execute);
    /// Puts the child views in the order of the buttons, the order in which assistive programs tell
    /// them.
    void sortChildren();
    /// Places the buttons in the row's height and takes their width.
    void layOut();

    MenuButton* menuButton_ = nullptr;
    QList<ShortcutButtonView*> buttons_;
};

} // namespace velmora
