#include "app/MainMenu.h"

using namespace Qt::StringLiterals;

namespace velmora {

QList<MenuModel> mainMenu() {
    const MenuEntry separator;
    return {
        {u""_s,
         {{u"About Velmora"_s, u"orderFrontStandardAboutPanel:"_s, {}},
          separator,
          {u"Settings..."_s, u"showSettings"_s, QKeySequence(u"Ctrl+,"_s)},
          separator,
          {u"Quit Velmora"_s, u"terminate:"_s, QKeySequence(u"Ctrl+Q"_s)}}},
        {u"Edit"_s,
         {{u"Undo"_s, u"undo:"_s, QKeySequence(u"Ctrl+Z"_s)},
          {u"Redo"_s, u"redo:"_s, QKeySequence(u"Ctrl+Shift+Z"_s)},
          separator,
          {u"Cut"_s, u"cut:"_s, QKeySequence(u"Ctrl+X"_s)},
          {u"Copy"_s, u"copy:"_s, QKeySequence(u"Ctrl+C"_s)},
          {u"Paste"_s, u"paste:"_s, QKeySequence(u"Ctrl+V"_s)},
          {u"Select All"_s, u"selectAll:"_s, QKeySequence(u"Ctrl+A"_s)}}},
    };
}

} // namespace velmora
