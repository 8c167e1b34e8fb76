#include "app/TrustNotice.h"

#include "foundation/LocalizedString.h"
#include "platform/WindowActivation.h"

#include <QLabel>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// Keeps what is brought forward.
struct FakeWindowActivation : WindowActivation {
    std::unique_ptr<QWidget> shown;
    void makeKeyAndOrderFront(QWidget& window) override { shown.reset(&window); }
};

TEST(TrustNotice, NamesWhatIsMissing) {
    installLocalizedStrings();
    for (const QStringList& missing :
         {QStringList(), QStringList{u"XTEST"_s}, QStringList{u"XTEST"_s, u"XKEYBOARD"_s}}) {
        FakeWindowActivation activation;
        showTrustNotice(activation, missing);
        QString text;
        for (const QLabel* const label : activation.shown->findChildren<QLabel*>())
            text += label->text();
        for (const QString& name : {u"Wayland"_s, u"XTEST"_s, u"XKEYBOARD"_s})
            EXPECT_EQ(
                text.contains(name),
                missing.isEmpty() ? name == u"Wayland" : missing.contains(name))
                << text.toStdString();
    }
}

} // namespace
} // namespace velmora
