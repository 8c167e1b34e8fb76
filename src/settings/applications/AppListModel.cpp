#include "settings/applications/AppListModel.h"

#include "foundation/LocalizedString.h"

#include <numeric>

namespace velmora {

QString foldedForSearch(const QString& text) {
    constexpr QChar dotAbove(0x0307); // what lower case of İ leaves behind the i
    // QString::toCaseFolded() maps one letter to one; going by way of upper case takes ß to ss and
    // ı to i, and lower case before it takes along letters that are upper case already (ẞ).
    QString folded = text.normalized(QString::NormalizationForm_KC).toLower().toUpper().toLower();
    folded.replace(QString(u'i') + dotAbove, QString(u'i'));
    return folded.normalized(QString::NormalizationForm_KC);
}

SearchableApps::SearchableApps(QList<AppInfo> list) : apps(std::move(list)) {
    folded.reserve(apps.size());
    // A search text holds no line break, so none is found across the two.
    for (const AppInfo& app : apps)
        folded.append(foldedForSearch(app.name) + u'\n' + foldedForSearch(app.bundleId));
}

AppListModel::AppListModel(QString selectedBundleId)
    : selectedBundleId_(std::move(selectedBundleId)) {}

void AppListModel::setApps(SearchableApps apps) {
    beginResetModel();
    all_ = std::move(apps);
    isLoaded_ = true;
    filter();
    endResetModel();
}

void AppListModel::clear() {
    setApps({});
    isLoaded_ = false;
}

void AppListModel::setSearchText(const QString& text) {
    beginResetModel();
    searchText_ = foldedForSearch(text);
    filter();
    endResetModel();
}

void AppListModel::showAllApps() {
    if (!offersAll())
        return;
    const int offer = int(filtered_.size());
    beginRemoveRows({}, offer, offer);
    showAllApps_ = true;
    endRemoveRows();
    beginInsertRows({}, offer, int(all_.apps.size()) - 1);
    filter();
    endInsertRows();
}

const AppInfo* AppListModel::app(const QModelIndex& index) const {
    return index.row() < filtered_.size() ? &all_.apps[filtered_[index.row()]] : nullptr;
}

int AppListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(filtered_.size()) + (offersAll() ? 1 : 0);
}

QVariant AppListModel::data(const QModelIndex& index, int role) const {
    const AppInfo* shown = app(index);
    switch (role) {
    case Qt::DisplayRole:
        return shown ? shown->name : localizedString("picker_app_show_all").arg(all_.apps.size());
    case Qt::AccessibleTextRole:
        if (shown && isSelected(*shown))
            return QString(u'✓' + QChar(u' ') + shown->name);
        return data(index, Qt::DisplayRole);
    case Qt::AccessibleDescriptionRole:
        return shown ? shown->bundleId : QVariant();
    default:
        return {};
    }
}

bool AppListModel::offersAll() const {
    return !showAllApps_ && searchText_.isEmpty() && all_.apps.size() > initialCount;
}

void AppListModel::filter() {
    filtered_.clear();
    if (searchText_.isEmpty()) {
        filtered_.resize(offersAll() ? initialCount : all_.apps.size());
        std::iota(filtered_.begin(), filtered_.end(), 0);
        return;
    }
    for (qsizetype i = 0; i < all_.apps.size(); ++i) {
        if (all_.folded[i].contains(searchText_))
            filtered_.append(i);
    }
}

} // namespace velmora
