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

    /// Position of the cell that has the focus, or -1.
    qsizetype focused() const {
        return cells().indexOf(qobject_cast<IconButton*>(QApplication::focusWidget()));
    }

    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
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
        press(step.key);
        EXPECT_EQ(focused(), step.cell) << step.key;
    }
    press(Qt::Key_End);
    EXPECT_FALSE(cells()[81]->visibleRegion().isEmpty());
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), -1); // the grid is one stop
    press(Qt::Key_Escape);
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(picked.isEmpty());
}

TEST_F(IconPickerViewTest, KeysAssistiveProgramsAndAClickPickWhatOneCellMarks) {
    const std::function<void()> picks[] = {
        [this] { press(Qt::Key_Return); }, [this] { press(Qt::Key_Space); },
        [this] {
            QAccessible::queryAccessibleInterface(cells()[7])
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::toggleAction());
        },
        [this] { QTest::mouseClick(cells()[7], Qt::LeftButton); }};
    for (const auto& pick : picks) {
        picked.clear();
        open(u"appwindow.swiftui"_s); // without a picture
        ASSERT_TRUE(waitFor([this] { return focused() == 6; }));
        for (qsizetype i = 0; i < cells().size(); ++i)
            EXPECT_EQ(cells()[i]->isSelected(), i == 6);
        press(Qt::Key_Right);
        pick();
        EXPECT_EQ(picked, QStringList{u"app.badge"_s});
        EXPECT_TRUE(isClosed());
    }
}

TEST_F(IconPickerViewTest, EveryCellShowsSomething) {
    open(u"Globe"_s);
    for (IconButton* cell : cells()) {
        EXPECT_FALSE(cell->isSelected());
        const QImage image = cell->grab().toImage();
        const QRect inside = image.rect().marginsRemoved({12, 12, 12, 12});
        QImage empty(inside.size(), image.format());
        empty.fill(image.pixelColor(12, 12));
        EXPECT_NE(image.copy(inside), empty) << qPrintable(cell->help());
    }
}

} // namespace
