// The application chooser in its sheet: loading, keys, picking and closing at any moment.

#include "settings/AppPickerView.h"

#include "settings/AppListView.h"
#include "support/TestDisplay.h"
#include "viewkit/PlainButton.h"
#include "viewkit/Sheet.h"

#include <QAccessible>
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

class AppPickerViewTest : public testing::Test {
protected:
    /// A chooser over "App 0" … in a sheet; its scan waits for `gate`.
    void open(int count, const QString& selected = {}) {
        QList<InstalledApplication> installed;
        for (int i = 0; i < count; ++i)
            installed.append(
                {u"org.app%1"_s.arg(i), u"App %1"_s.arg(i, 4, 10, QChar(u'0')), {}, {}});
        auto view = std::make_unique<AppPickerView>(
            selected, [this](const AppInfo& app) { picked.append(app.bundleId); },
            AppScanner({.folders = {}, .finder = {}, .installed = [this, installed] {
                            isScanning = true;
                            gate.acquire();
                            ++scans;
                            return installed;
                        }}));
        picker = view.get();
        window.show();
        sheet = &Sheet::present(window, std::move(view));
    }

    void openLoaded(int count) {
        gate.release();
        open(count);
        ASSERT_TRUE(waitFor([this] { return list().isVisible(); }));
    }

    QLineEdit& edit() { return *picker->findChild<QLineEdit*>(); }
    AppListView& list() { return *picker->findChild<AppListView*>(); }
    int currentRow() { return list().currentIndex().row(); }
    bool isClosed() {
        return waitFor([this] { return sheet.isNull(); });
    }

    QSemaphore gate;
    std::atomic<bool> isScanning = false;
    std::atomic<int> scans = 0;
    QStringList picked;
    QWidget window;
    QPointer<AppPickerView> picker;
    QPointer<Sheet> sheet;
};

TEST_F(AppPickerViewTest, AScanEndsWithTheChooser) {
    // One thread, and that one busy: the scan is still to come when the chooser goes.
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"closed", [this] { sheet->reject(); }},
        {"destroyed", [this] { delete sheet; }},
        {"program ends", [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        QSemaphore busy;
        pool.start([&busy] { busy.acquire(); });
        gate.release();
        open(30);
        EXPECT_FALSE(picker->model().rowCount());
        end();
        busy.release();
        pool.waitForDone();
        EXPECT_EQ(scans, 0);
        delete sheet;
    }
    pool.setMaxThreadCount(QThread::idealThreadCount());
}

TEST_F(AppPickerViewTest, ArrowsAndReturnFromTheSearchField) {
    openLoaded(30);
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
    EXPECT_EQ(picker->model().rowCount(), 30);
    EXPECT_EQ(currentRow(), 20) << "the first that was hidden";
    EXPECT_TRUE(picked.isEmpty() && edit().hasFocus());
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(picked, QStringList{u"org.app20"_s});
    EXPECT_TRUE(isClosed());
}

TEST_F(AppPickerViewTest, TypingSearchesAlsoWhileLoadingAndFromTheList) {
    open(30);
    QTest::keyClicks(&edit(), u"ap"_s);
    gate.release();
    ASSERT_TRUE(waitFor([this] { return list().isVisible(); }));
    QTest::keyClicks(&list(), u"p"_s);
    QTest::keyClicks(&edit(), u" 0025"_s);
    EXPECT_EQ(edit().text(), u"app 0025"_s);
    EXPECT_EQ(picker->model().rowCount(), 1);
    auto* clear = picker->findChild<PlainButton*>();
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(picker->model().rowCount(), 21);
    EXPECT_FALSE(clear->isVisible());
    const QRect row = list().visualRect(picker->model().index(3));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(picked, QStringList{u"org.app3"_s});
    EXPECT_TRUE(isClosed());
}

TEST_F(AppPickerViewTest, AssistiveProgramsPickBySelecting) {
    openLoaded(30);
    const auto act = [this](int row) {
        QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(&list());
        rows->child(row)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        // Without a bus nothing tells it of changes of the rows.
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(rows));
    };
    act(20); // the offer of all
    EXPECT_TRUE(waitFor([this] { return picker->model().rowCount() == 30; }));
    EXPECT_TRUE(picked.isEmpty());
    EXPECT_EQ(currentRow(), 20);
    act(20); // also the row that Return would pick
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(picked, QStringList{u"org.app20"_s});
}

} // namespace
