#include "app/TermsOfServiceWindow.h"

#include "foundation/UserDefaults.h"
#include "platform/WindowActivation.h"
#include "settings/StorageNotice.h"
#include "support/KeyTexts.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
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

    QPushButton* answer(bool agrees) const {
        const auto buttons = activation.shown->findChildren<QPushButton*>();
        return *std::ranges::find(buttons, agrees, &QPushButton::isDefault);
    }

    const test::KeyTexts texts;
    const QTemporaryDir root;
    UserDefaults defaults{root.path() + u"/velmora.conf"_s};
    FakeActivation activation;
    TermsOfServiceWindow terms{defaults, activation};
    int agreed = 0;
};

TEST_F(TermsOfServiceWindowTest, TakesTheAnswerOnce) {
    QPushButton* const agree = answer(true);
    agree->click();
    agree->click(); // the second of a double click comes before the window has gone
    EXPECT_EQ(agreed, 1);
}

TEST_F(TermsOfServiceWindowTest, SaysThatTheAnswerCannotBeStored) {
    EXPECT_TRUE(activation.shown->findChild<StorageNotice*>()->isHidden());
    QDir().mkpath(root.path() + u"/folder"_s);
    UserDefaults unusable{root.path() + u"/folder"_s};
    TermsOfServiceWindow other{unusable, activation};
    other.show([this] { ++agreed; });
    const auto* notice = activation.shown->findChild<StorageNotice*>();
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->text(), u"tos.not_stored_format %1."_s.arg(unusable.failure()));
    answer(true)->click();
    EXPECT_EQ(agreed, 1);
    EXPECT_TRUE(unusable.boolean(u"hasAgreedToToS_v1"_s)) << "until the end";
}

TEST_F(TermsOfServiceWindowTest, ReturnOnTheOtherAnswerDoesNotAgree) {
    QApplication::setActiveWindow(activation.shown);
    int refused = 0;
    QPushButton* const refuse = answer(false);
    QObject::connect(refuse, &QPushButton::clicked, refuse, [&] { ++refused; });
    refuse->setFocus();
    QTest::keyClick(refuse, Qt::Key_Return);
    EXPECT_EQ(refused, 1);
    EXPECT_EQ(agreed, 0);
}

} // namespace
} // namespace velmora
