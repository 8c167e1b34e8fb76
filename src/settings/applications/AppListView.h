#pragma once

#include "settings/applications/AppIcons.h"

#include <QListView>
#include <QTimer>

namespace velmora {

class AppListModel;
struct AppInfo;

/// The scrolling list of the application chooser. Only visible rows are drawn, and only their icons
/// are looked up, after the rows were first shown and in slices short enough to go unnoticed.
class AppListView : public QListView {
    Q_OBJECT
public:
    explicit AppListView(AppListModel& model);

    /// Moves the current row as `key` (up, down, page up, page down) does in a list; false for
    /// other keys.
    bool moveCurrent(int key);

Q_SIGNALS:
    /// A row was clicked, or an assistive program selected it.
    void rowPicked(const QModelIndex& index);

protected:
    /// Nothing of the user's selects a row.
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex&, const QEvent*) const override {
        return QItemSelectionModel::NoUpdate;
    }
    void paintEvent(QPaintEvent* event) override;

private:
    class Delegate;

    /// The pixmap when it is there; else a null one, and it is loaded soon.
    QPixmap icon(const AppInfo& app) const;
    void loadSomeIcons();
    void pickSelected();

    AppListModel& model_;
    AppIcons icons_;
    mutable QTimer iconTimer_;
};

} // namespace velmora
