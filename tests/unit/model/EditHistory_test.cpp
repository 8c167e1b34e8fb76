#include "foundation/UserDefaults.h"
#include "model/MouseButtonBinding.h"
#include "model/StoredList.h"
#include "support/KeyTexts.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

TEST(EditHistoryTest, WalksBackAndForthThroughBothLists) {
    const test::KeyTexts texts;
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"velmora.conf"_s));
    EditHistory history;
    const auto nothing = [] {};
    StoredList<ShortcutButton> buttons(defaults, history, u"buttons"_s, readButton, nothing);
    StoredList<MouseButtonBinding> bindings(
        defaults, history, u"bindings"_s, readMouseButtonBinding, nothing);
    QUuid revealed;
    QObject::connect(&history, &EditHistory::stepped, [&](const QUuid& id) { revealed = id; });
    const auto state = [&] {
        return encodedList(buttons.records()) + encodedList(bindings.records());
    };
    const auto button = [](const QString& title) {
        return ShortcutButton(title, {}, OpenUrl{u"u"_s});
    };
    const MouseButtonBinding binding(3, OpenUrl{u"u"_s});

    QByteArrayList states{state()};
    QStringList names{{}};
    const std::pair<QString, std::function<void()>> steps[] = {
        {u"edit_add_format a."_s, [&] { buttons.append(button(u"a"_s)); }},
        {u"edit_add_format mouse_click_btn4."_s, [&] { bindings.append(binding); }},
        {u"edit_add_format action_desc_open u.."_s, [&] { buttons.append(button({})); }},
        {u"all"_s,
         [&] {
             history.group(u"all"_s, [&] {
                 buttons.replaceAll({button(u"b"_s), button(u"c"_s), button(u"d"_s)}, {});
                 bindings.replaceAll({}, {});
             });
         }},
        {u"edit_move_format b."_s, [&] { buttons.move(0, 3); }},
        {u"edit_remove_format c."_s, [&] { buttons.remove(0); }},
    };
    for (const auto& [name, step] : steps) {
        step();
        states << state();
        names << name;
    }
    for (int round = 0; round < 2; ++round) {
        for (qsizetype step = std::size(steps); step > 0; --step) {
            EXPECT_EQ(history.undoName(), names.at(step));
            history.undo();
            EXPECT_EQ(history.redoName(), names.at(step));
            EXPECT_EQ(state(), states.at(step - 1)) << step;
        }
        history.undo(); // there is no more
        for (qsizetype step = 1; step < states.size(); ++step) {
            history.redo();
            EXPECT_EQ(state(), states.at(step)) << step;
            EXPECT_EQ(step == 2, revealed == binding.id());
        }
        history.redo();
    }

    history.undo();
    buttons.append(button(u"e"_s));
    EXPECT_EQ(history.redoName(), QString()) << "another way was taken";
    for (int step = 0; step <= EditHistory::mostSteps; ++step)
        buttons.append(button(u"f"_s));
    for (int step = 0; step <= EditHistory::mostSteps; ++step)
        history.undo();
    EXPECT_EQ(buttons.records().size(), 5) << "the oldest are forgotten";
}

} // namespace
} // namespace velmora
