#include "model/ShortcutManager.h"

#include "foundation/UserDefaults.h"

using namespace Qt::StringLiterals;

namespace velmora {

ShortcutManager& ShortcutManager::shared() {
    static auto* instance = new ShortcutManager(UserDefaults::standard(), EditHistory::shared());
    return *instance;
}

ShortcutManager::ShortcutManager(UserDefaults& defaults, EditHistory& history)
    : userDefaultsKey(u"SavedShortcuts"_s),
      shortcuts_(defaults, history, userDefaultsKey, readButton, [this] {
          Q_EMIT shortcutsWillChange();
      }) {
    if (shortcuts().isEmpty())
        createDefaultShortcuts();
}

void ShortcutManager::createDefaultShortcuts() {
    shortcuts_.assign({
        {u"Safari"_s, u"safari"_s, LaunchApp{u"Safari"_s, u"com.apple.Safari"_s}},
        {u"Finder"_s, u"folder"_s, LaunchApp{u"Finder"_s, u"com.apple.finder"_s}},
        {u"Google"_s, u"globe"_s, OpenUrl{u"https://www.google.com/"_s}, ButtonAlignment::right},
        {u"スクショ"_s, u"camera"_s,
         ExecuteShellCommand{u"screencapture -i ~/Desktop/screenshot.png"_s},
         ButtonAlignment::right},
    });
}

void ShortcutManager::addShortcut(const ShortcutButton& button) {
    shortcuts_.append(button);
}

void ShortcutManager::removeShortcut(qsizetype index) {
    shortcuts_.remove(index);
}

void ShortcutManager::updateShortcut(qsizetype index, const ShortcutButton& button) {
    shortcuts_.replace(index, button);
}

void ShortcutManager::moveShortcut(qsizetype source, qsizetype destination) {
    shortcuts_.move(source, destination);
}

void ShortcutManager::replaceShortcuts(const QList<ShortcutButton>& buttons, const QString& name) {
    shortcuts_.replaceAll(buttons, name);
}

void ShortcutManager::saveShortcuts() {
    shortcuts_.save();
}

} // namespace velmora
