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

TEST(TermsOfServiceWindow, TakesOneAnswerAndSaysWhereItCannotBeStored) {
    const test::KeyTexts texts;
    const QTemporaryDir root;
    QDir().mkpath(root.path() + u"/folder"_s);
    for (const QString& name : {u"/velmora.conf"_s, u"/folder"_s}) {
        UserDefaults defaults{root.path() + name};
        FakeActivation activation;
        TermsOfServiceWindow terms{defaults, activation};
        int agreed = 0;
        terms.show([&] { ++agreed; });
        const auto* notice = activation.shown->findChild<StorageNotice*>();
        EXPECT_EQ(notice->isVisible(), name == u"/folder");
        EXPECT_EQ(notice->text(), u"tos.not_stored_format %1."_s.arg(defaults.failure()));

        const auto buttons = activation.shown->findChildren<QPushButton*>();
        QPushButton* agree = *std::ranges::find(buttons, true, &QPushButton::isDefault);
        QPushButton* refuse = *std::ranges::find(buttons, false, &QPushButton::isDefault);
        int refused = 0;
        QObject::connect(refuse, &QPushButton::clicked, refuse, [&] { ++refused; });
        QApplication::setActiveWindow(activation.shown);
        refuse->setFocus();
        QTest::keyClick(refuse, Qt::Key_Return);
        EXPECT_EQ(refused, 1);
        EXPECT_EQ(agreed, 0);
        agree->click();
        agree->click(); // the second of a double click comes before the window has gone
        EXPECT_EQ(agreed, 1);
        EXPECT_TRUE(defaults.boolean(u"hasAgreedToToS_v1"_s)) << "until the end";
    }
}

} // namespace
} // namespace velmora
