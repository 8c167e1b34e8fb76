#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>
#include <functional>

class QScrollArea;

namespace velmora {

class IconButton;

/// The chooser of a bar button's symbol, to be shown in a sheet. Arrow keys, Home and End walk the
/// grid; the grid is one stop of the Tab key.
class IconPickerView : public QWidget {
    Q_OBJECT
public:
    /// Marks `selectedIcon` when it is one of those offered. `onPick` receives the name that was
    /// picked, after which the sheet closes; it is not called when the sheet closes otherwise.
    IconPickerView(const QString& selectedIcon, std::function<void(const QString&)> onPick);

    /// The symbols offered, in the order shown.
    static const QStringList commonIcons;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeGrid(const QString& selectedIcon, std::function<void(const QString&)> onPick);
    /// Makes `cell` the one that the Tab key reaches.
    void makeTabStop(IconButton& cell);

    QScrollArea* scrollArea_;
    QList<IconButton*> cells_; ///< one for each of commonIcons
};

} // namespace velmora
