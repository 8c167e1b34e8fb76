// The symbol chooser in its sheet: the mark, the walk over the grid, and picking.

#include "settings/IconPickerView.h"

#include "settings/IconButton.h"
#include "support/TestDisplay.h"
#include "viewkit/Sheet.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

class IconPickerViewTest : public testing::Test {
protected:
    void open(const QString& selected) {
        auto view = std::make_unique<IconPickerView>(
            selected, [this](const QString& name) { picked.append(name); });
        picker = view.get();
        window.show();
        sheet = &Sheet::present(window, std::move(view));
        QApplication::setActiveWindow(sheet);
    }

    QList<IconButton*> cells() const { return picker->findChildren<IconButton*>(); }

    QList<qsizetype> marked() const {
        QList<qsizetype> result;
        for (qsizetype i = 0; i < cells().size(); ++i) {
            if (cells()[i]->isSelected())
                result.append(i);
        }
        return result;
    }

    /// Position of the cell that has the focus, or -1.
    qsizetype focused() const {
        return cells().indexOf(qobject_cast<IconButton*>(QApplication::focusWidget()));
    }

    bool isClosed() {
        return waitFor([this] { return sheet.isNull(); });
    }

    QStringList picked;
    QWidget window;
    QPointer<IconPickerView> picker;
    QPointer<Sheet> sheet;
};

TEST_F(IconPickerViewTest, KeysWalkTheGrid) {
    open(u"safari"_s);
    ASSERT_TRUE(waitFor([this] { return focused() == 0; }));
    const struct {
        Qt::Key key;
        qsizetype cell;
    } steps[] = {
        {Qt::Key_Left, 0},   {Qt::Key_Up, 0},    {Qt::Key_Right, 1}, {Qt::Key_Down, 7},
        {Qt::Key_Left, 6},   {Qt::Key_Left, 5},  {Qt::Key_Up, 5},    {Qt::Key_End, 81},
        {Qt::Key_Right, 81}, {Qt::Key_Down, 81}, {Qt::Key_Up, 75},   {Qt::Key_Right, 76},
        {Qt::Key_Down, 81}, // the last row is shorter
        {Qt::Key_Home, 0},
    };
    for (const auto& step : steps) {
        QTest::keyClick(QApplication::focusWidget(), step.key);
        EXPECT_EQ(focused(), step.cell) << step.key;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_FALSE(cells()[81]->visibleRegion().isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(focused(), -1); // the grid is one stop
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(IconPickerViewTest, KeysAssistiveProgramsAndAClickPick) {
    const std::function<void()> picks[] = {
        [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
        [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); },
        [this] {
            QAccessible::queryAccessibleInterface(cells()[2])
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::toggleAction());
        }};
    for (const auto& pick : picks) {
        picked.clear();
        open(u"mail"_s);
        EXPECT_EQ(marked(), QList<qsizetype>{1});
        ASSERT_TRUE(waitFor([this] { return focused() == 1; }));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        pick();
        EXPECT_EQ(picked, QStringList{u"calendar"_s});
        EXPECT_TRUE(isClosed());
    }
    open(u"Globe"_s);
    EXPECT_TRUE(marked().isEmpty());
    QTest::mouseClick(cells()[6], Qt::LeftButton); // a cell without a picture
    EXPECT_EQ(picked.last(), u"appwindow.swiftui"_s);
    EXPECT_TRUE(isClosed());
}

} // namespace
