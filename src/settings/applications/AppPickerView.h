#pragma once

#include "settings/applications/AppListModel.h"
#include "settings/applications/AppScanner.h"

#include <QWidget>
#include <functional>

class QModelIndex;

namespace velmora {

class AppListView;
class SearchField;

/// The chooser of an application, to be shown in a sheet. It scans when it appears, off the main
/// thread, and no longer than it is shown. Typing searches wherever the focus is; the arrows move
/// through the list also from the search field, and Return picks.
class AppPickerView : public QWidget {
    Q_OBJECT
public:
    /// Marks the applications under `selectedBundleId`. `onPick` receives the one picked, after
    /// which the sheet closes; it is not called when the sheet closes otherwise.
    AppPickerView(
        const QString& selectedBundleId, std::function<void(const AppInfo&)> onPick,
        AppScanner scanner = AppScanner::shared());
    ~AppPickerView() override;

    /// The rows shown.
    AppListModel& model() { return model_; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadApps();
    void setSearchText(const QString& text);
    /// Makes the first row that was found the current one, which Return picks.
    void goToFirstFound();
    /// Does what a row is for: picks its application, or shows all.
    void pick(const QModelIndex& index);

    std::function<void(const AppInfo&)> onPick_;
    AppScanner scanner_;
    std::stop_source scan_; ///< of the last scan
    AppListModel model_;
    SearchField* searchField_;
    AppListView* list_;
};

} // namespace velmora
