#pragma once

#include "settings/applications/AppInfo.h"

#include <QAbstractListModel>
#include <QList>

namespace velmora {

/// `text` in a form in which containment ignores case and compatibility forms (full-width letters,
/// ligatures, ß and ss), but not diacritics: ä stays apart from a. The four letters i (I, i, İ, ı)
/// are one, so that a search works whichever pair the user's language holds for upper and lower
/// case.
QString foldedForSearch(const QString& text);

/// The result of a scan with what searching it needs, both made off the main thread.
struct SearchableApps {
    QList<AppInfo> apps;
    QStringList folded; ///< name and identifier of each, folded, in the order of `apps`

    SearchableApps() = default;
    explicit SearchableApps(QList<AppInfo> list);
};

/// The rows of the application chooser: the applications that the search or the first-20 rule
/// leaves, then, when that rule hides some, one row that offers them all.
class AppListModel : public QAbstractListModel {
    Q_OBJECT
public:
    /// Applications listed until the user searches or asks for all.
    static constexpr qsizetype initialCount = 20;

    explicit AppListModel(QString selectedBundleId);

    /// Shows what a scan found.
    void setApps(SearchableApps apps);
    /// Empties the list until the next scan.
    void clear();
    /// Whether the list shows what a scan found.
    bool isLoaded() const { return isLoaded_; }

    void setSearchText(const QString& text);
    bool isSearching() const { return !searchText_.isEmpty(); }
    /// Lifts the first-20 rule; rows stay where they are.
    void showAllApps();

    /// The application of a row; null for the row that offers all.
    const AppInfo* app(const QModelIndex& index) const;
    /// Whether the row shows the current choice: every one with its bundle identifier does.
    bool isSelected(const AppInfo& app) const { return app.bundleId == selectedBundleId_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    /// Display text (the name, or the offer of all) and the texts for assistive programs.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    bool offersAll() const;
    void filter();

    QString selectedBundleId_;
    SearchableApps all_;
    bool isLoaded_ = false;
    QString searchText_; ///< folded
    bool showAllApps_ = false;
    QList<qsizetype> filtered_; ///< positions in `all_`
};

} // namespace velmora
