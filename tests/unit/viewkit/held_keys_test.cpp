#include "viewkit/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// Two windows that write down the presses that reach them: "a" fresh, "(a)" as a repeat.
class HeldKeysTest : public testing::Test {
protected:
    struct Window : QWidget {
        QString heard;
        void keyPressEvent(QKeyEvent* event) override {
            heard += (event->isAutoRepeat() ? u"(%1)"_s : u"%1"_s).arg(event->text());
        }
    };

    HeldKeysTest() {
        first_.show();
        second_.show();
    }

    /// What comes of a key at a time of the server; `isMarked` by Qt as a repeat.
    static void
    send(Window& window, QEvent::Type type, quint64 time, bool isMarked, int key = Qt::Key_A) {
        const QString text(key == Qt::Key_A ? u'a' : u'r');
        QKeyEvent event(type, key, {}, quint32(key), 0, 0, text, isMarked);
        event.setTimestamp(time);
        QApplication::sendEvent(window.windowHandle(), &event);
    }
    static void repeat(Window& window, quint64 time, bool isMarked, int key = Qt::Key_A) {
        send(window, QEvent::KeyRelease, time, isMarked, key);
        send(window, QEvent::KeyPress, time, isMarked, key);
    }

    const HeldKeys heldKeys_{nullptr};
    Window first_;
    Window second_;
};

TEST_F(HeldKeysTest, ARepeatReachesOnlyTheWindowOfItsPressWhateverItsMark) {
    send(first_, QEvent::KeyPress, 10, false);
    repeat(first_, 20, true);
    repeat(first_, 30, false);
    EXPECT_EQ(first_.heard, u"a(a)(a)"_s);
    repeat(second_, 40, true);
    repeat(second_, 50, false);
    EXPECT_EQ(second_.heard, QString());
    send(second_, QEvent::KeyRelease, 60, false);
    send(second_, QEvent::KeyPress, 70, false);
    // The release went to a grab, and the mark of the last repeat stayed.
    send(second_, QEvent::KeyPress, 80, true);
    EXPECT_EQ(second_.heard, u"aa"_s);
    repeat(first_, 90, true, Qt::Key_R);
    EXPECT_EQ(first_.heard, u"a(a)(a)"_s) << "went down elsewhere";
}

TEST_F(HeldKeysTest, ReturnAnswersOnce) {
    send(first_, QEvent::KeyPress, 10, false, Qt::Key_Return);
    repeat(first_, 20, true, Qt::Key_Return);
    EXPECT_EQ(first_.heard, u"r"_s);
}

} // namespace
