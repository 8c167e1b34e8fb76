// The choosers of an application and of a symbol in their sheets: keys, picking and closing.

#include "settings/IconButton.h"
#include "settings/IconPickerView.h"
#include "settings/applications/AppListView.h"
#include "settings/applications/AppPickerView.h"
#include "support/TestDisplay.h"
#include "viewkit/PlainButton.h"
#include "viewkit/Sheet.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSemaphore>
#include <QTest>
#include <QThreadPool>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using velmora::test::waitFor;

namespace {

class PickerTest : public testing::Test {
protected:
    template<typename Picker>
    Picker* present(std::unique_ptr<Picker> view) {
        Picker* picker = view.get();
        window.show();
        sheet = &Sheet::present(window, std::move(view));
        QApplication::setActiveWindow(sheet);
        return picker;
    }

    /// An assistive program selects that child of `view`.
    static void select(QWidget& view, int child) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&view);
        interface->child(child)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        // Without a bus nothing tells it of changes of the children.
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
    }
    bool isClosed() {
        return waitFor([this] { return sheet.isNull(); });
    }

    QStringList picked;
    QWidget window;
    QPointer<Sheet> sheet;
};

class AppPickerViewTest : public PickerTest {
protected:
    /// A chooser over "App 0000" to "App 0029"; its scan waits for `gate`.
    void open() {
        QList<InstalledApplication> installed;
        for (int i = 0; i < 30; ++i)
            installed.append(
                {u"org.app%1"_s.arg(i), u"App %1"_s.arg(i, 4, 10, QChar(u'0')), {}, {}});
        const auto scan = [this, installed] {
            gate.acquire();
            ++scans;
            return installed;
        };
        picker = present(std::make_unique<AppPickerView>(
            QString(), [this](const AppInfo& app) { picked.append(app.bundleId); },
            AppScanner({.folders = {}, .finder = {}, .installed = scan})));
    }
    void waitForRows() {
        gate.release();
        ASSERT_TRUE(waitFor([this] { return picker->model().isLoaded(); }));
    }

    QLineEdit& edit() { return *picker->findChild<QLineEdit*>(); }
    AppListView& list() { return *picker->findChild<AppListView*>(); }
    int rowCount() { return picker->model().rowCount(); }
    int currentRow() { return list().currentIndex().row(); }

    QSemaphore gate;
    std::atomic<int> scans = 0;
    AppPickerView* picker = nullptr;
};

TEST_F(AppPickerViewTest, AScanEndsWithTheChooser) {
    // One thread, and that one busy: the scan is still to come when the chooser goes.
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    const std::function<void()> ends[] = {
        [this] { sheet->reject(); }, [this] { delete sheet; },
        [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); }};
    for (const auto& end : ends) {
        QSemaphore busy;
        pool.start([&busy] { busy.acquire(); });
        gate.release();
        open();
        EXPECT_EQ(rowCount(), 0);
        end();
        busy.release();
        pool.waitForDone();
        EXPECT_EQ(scans, 0) << &end - ends;
        delete sheet;
    }
    pool.setMaxThreadCount(QThread::idealThreadCount());
}

TEST_F(AppPickerViewTest, ArrowsAndReturnFromTheSearchField) {
    open();
    waitForRows();
    QTest::keyClick(&edit(), Qt::Key_Return); // nothing is current
    EXPECT_TRUE(picked.isEmpty());
    for (const auto& [key, row] :
         {std::pair{Qt::Key_Up, 0}, {Qt::Key_Down, 1}, {Qt::Key_Down, 2}}) {
        QTest::keyClick(&edit(), key);
        EXPECT_EQ(currentRow(), row);
    }
    QTest::keyClick(&edit(), Qt::Key_PageDown);
    EXPECT_GT(currentRow(), 5);
    QTest::keyClick(&edit(), Qt::Key_PageUp);
    EXPECT_EQ(currentRow(), 2);
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(&edit(), Qt::Key_Down);
    EXPECT_EQ(currentRow(), 20) << "the offer of all";
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(rowCount(), 30);
    EXPECT_EQ(currentRow(), 20) << "the first that was hidden";
    EXPECT_TRUE(picked.isEmpty() && edit().hasFocus());
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(picked, QStringList{u"org.app20"_s});
    EXPECT_TRUE(isClosed());
}

TEST_F(AppPickerViewTest, TypingSearchesAlsoWhileLoadingAndFromTheList) {
    open();
    QTest::keyClicks(&edit(), u"ap"_s);
    waitForRows();
    QTest::keyClicks(&list(), u"p"_s);
    QTest::keyClicks(&edit(), u" 0025"_s);
    EXPECT_EQ(edit().text(), u"app 0025"_s);
    EXPECT_EQ(rowCount(), 1);
    auto* clear = picker->findChild<PlainButton*>();
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(rowCount(), 21);
    EXPECT_FALSE(clear->isVisible());
    const QRect row = list().visualRect(picker->model().index(3));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(picked, QStringList{u"org.app3"_s});
    EXPECT_TRUE(isClosed());
}

TEST_F(AppPickerViewTest, AssistiveProgramsPickBySelecting) {
    open();
    waitForRows();
    select(list(), 20); // the offer of all
    EXPECT_TRUE(waitFor([this] { return rowCount() == 30; }));
    EXPECT_TRUE(picked.isEmpty());
    EXPECT_EQ(currentRow(), 20);
    select(list(), 20); // also the row that Return would pick
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(picked, QStringList{u"org.app20"_s});
}

TEST_F(PickerTest, KeysWalkTheGridOfSymbolsAndPick) {
    const auto cells = present(std::make_unique<IconPickerView>(
                                   u"appwindow.swiftui"_s, // without a picture
                                   [this](const QString& name) { picked.append(name); }))
                           ->findChildren<IconButton*>();
    ASSERT_TRUE(waitFor([&] { return cells.at(6)->hasFocus(); }));
    for (const IconButton* cell : cells)
        EXPECT_EQ(cell->isSelected(), cell == cells[6]);
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Up, 0},   {Qt::Key_Left, 0},   {Qt::Key_End, 81},  {Qt::Key_Right, 81},
        {Qt::Key_Up, 75},  {Qt::Key_Right, 76}, {Qt::Key_Down, 81}, // the last row is shorter
        {Qt::Key_Home, 0}, {Qt::Key_Down, 6},   {Qt::Key_Right, 7},
    };
    for (const auto& [key, cell] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_TRUE(cells[cell]->hasFocus()) << key;
    }
    QTest::keyClick(cells[7], Qt::Key_Return);
    EXPECT_EQ(picked, QStringList{u"app.badge"_s});
    EXPECT_TRUE(isClosed());
}

} // namespace
