#include "app/TermsOfServiceWindow.h"

#include "foundation/UserDefaults.h"
#include "platform/WindowActivation.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

class FakeActivation : public WindowActivation {
public:
    QWidget* shown = nullptr;
    void makeKeyAndOrderFront(QWidget& window) override {
        shown = &window;
        window.show();
    }
};

/// The window while it asks.
struct TermsOfServiceWindowTest : testing::Test {
    TermsOfServiceWindowTest() {
        terms.show([this] { ++agreed; });
    }

    const QTemporaryDir root;
    UserDefaults defaults{root.path() + u"/velmora.conf"_s};
    FakeActivation activation;
    TermsOfServiceWindow terms{defaults, activation};
    int agreed = 0;
};

TEST_F(TermsOfServiceWindowTest, TakesTheAnswerOnce) {
    for (QPushButton* button : activation.shown->findChildren<QPushButton*>()) {
        // The second click of a double click comes before the window has gone.
        for (int click = 0; click < 2 && button->isDefault(); ++click)
            button->click();
    }
    EXPECT_EQ(agreed, 1);
}

TEST_F(TermsOfServiceWindowTest, ReturnOnTheOtherAnswerDoesNotAgree) {
    QApplication::setActiveWindow(activation.shown);
    int refused = 0;
    for (QPushButton* button : activation.shown->findChildren<QPushButton*>()) {
        if (button->isDefault())
            continue;
        QObject::connect(button, &QPushButton::clicked, button, [&] { ++refused; });
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
    }
    EXPECT_EQ(refused, 1);
    EXPECT_EQ(agreed, 0);
}

} // namespace
} // namespace velmora
