#include "model/ShortcutManager.h"

#include "foundation/UserDefaults.h"

using namespace Qt::StringLiterals;

namespace velmora {

ShortcutManager& ShortcutManager::shared() {
    static auto* instance = new ShortcutManager(UserDefaults::standard());
    return *instance;
}

ShortcutManager::ShortcutManager(UserDefaults& defaults)
    : userDefaultsKey(u"SavedShortcuts"_s), storage_(defaults, userDefaultsKey, readButton) {
    loadShortcuts();
    if (shortcuts_.isEmpty())
        createDefaultShortcuts();
}

void ShortcutManager::createDefaultShortcuts() {
    Q_EMIT shortcutsWillChange();
    shortcuts_ = {
        {u"Safari"_s, u"safari"_s, LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}},
        {u"Finder"_s, u"folder"_s, LaunchApp{u"Finder"_s, u"com.apple.finder"_s}},
        {u"Google"_s, u"globe"_s, OpenUrl{u"https://www.google.com/"_s}, ButtonAlignment::right},
        {u"スクショ"_s, u"camera"_s,
         ExecuteShellCommand{u"screencapture -i ~/Desktop/screenshot.png"_s},
         ButtonAlignment::right},
    };
    saveShortcuts();
}

void ShortcutManager::addShortcut(const ShortcutButton& button) {
    Q_EMIT shortcutsWillChange();
    shortcuts_.append(button);
    saveShortcuts();
}

void ShortcutManager::removeShortcut(qsizetype index) {
    if (!holds(index))
        return;
    Q_EMIT shortcutsWillChange();
    shortcuts_.removeAt(index);
    saveShortcuts();
}

void ShortcutManager::updateShortcut(qsizetype index, const ShortcutButton& button) {
    if (!holds(index))
        return;
    Q_EMIT shortcutsWillChange();
    shortcuts_.replace(index, button);
    saveShortcuts();
}

void ShortcutManager::moveShortcut(qsizetype source, qsizetype destination) {
    if (!holds(source) || destination < 0 || destination > shortcuts_.size())
        return;
    Q_EMIT shortcutsWillChange();
    const ShortcutButton button = shortcuts_.takeAt(source);
    Q_EMIT shortcutsWillChange();
    shortcuts_.insert(destination > source ? destination - 1 : destination, button);
    saveShortcuts();
}

void ShortcutManager::saveShortcuts() {
    storage_.save(shortcuts_);
}

void ShortcutManager::loadShortcuts() {
    auto stored = storage_.load();
    if (!stored)
        return;
    Q_EMIT shortcutsWillChange();
    shortcuts_ = *std::move(stored);
}

bool ShortcutManager::holds(qsizetype index) const {
    return index >= 0 && index < shortcuts_.size();
}

} // namespace velmora
