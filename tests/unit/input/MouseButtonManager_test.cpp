#include "input/MouseButtonManager.h"

#include "foundation/UserDefaults.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputGrants.h"
#include "support/TestDisplay.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace velmora {
namespace {

const QString key = u"SavedMouseBindings"_s;

MouseButtonBinding bound(std::int64_t button, const QString& url) {
    return {button, OpenUrl{url}};
}

/// "3a 4b": each binding's button and the URL it opens.
QString summary(const MouseButtonManager& manager) {
    QStringList parts;
    for (const auto& binding : manager.bindings())
        parts << QString::number(binding.buttonNumber) + std::get<OpenUrl>(binding.action).url;
    return parts.join(u' ');
}

class MouseButtonManagerTest : public testing::Test {
protected:
    MouseButtonManager& start(const QList<MouseButtonBinding>& stored = {}) {
        if (!stored.isEmpty())
            defaults_.setData(key, encodedList(stored));
        return manager_.emplace(
            defaults_, history_, inputGrants_, accessibility_,
            [this](const ShortcutAction& action) { opened_ << std::get<OpenUrl>(action).url; },
            1ms);
    }

    /// What a press opens once the loop came to it.
    QStringList openedBy(std::int64_t button) {
        opened_.clear();
        swallowed_ = inputGrants_.sendButton(button);
        EXPECT_TRUE(opened_.isEmpty()) << "carried out inside the grant";
        QCoreApplication::processEvents();
        return opened_;
    }

    QList<std::int64_t> wanted() const {
        QList<std::int64_t> numbers;
        for (const auto* grant : inputGrants_.grants)
            numbers << grant->button;
        return numbers;
    }

    const QTemporaryDir root_;
    UserDefaults defaults_{root_.path() + u"/velmora.conf"_s};
    EditHistory history_;
    test::FakeAccessibility accessibility_;
    test::FakeInputGrants inputGrants_;
    QStringList opened_;
    bool swallowed_ = false;
    std::optional<MouseButtonManager> manager_;
};

TEST_F(MouseButtonManagerTest, ABindingTakesThePlaceOfTheFirstForItsButton) {
    const MouseButtonBinding on5 = bound(5, u"n"_s);
    const MouseButtonBinding on4 = bound(4, u"n"_s);
    const MouseButtonBinding on3 = bound(3, u"n"_s);
    const struct {
        const char* name;
        std::function<void(MouseButtonManager&)> operation;
        QString after;
    } cases[] = {
        {"add", [&](auto& m) { m.addBinding(on5); }, u"3a 4b 3c 5n"_s},
        {"add replaces in place", [&](auto& m) { m.addBinding(on4); }, u"3a 4n 3c"_s},
        {"add replaces the first", [&](auto& m) { m.addBinding(on3); }, u"3n 4b 3c"_s},
        {"add own", [](auto& m) { m.addBinding(m.bindings()[2]); }, u"3c 4b 3c"_s},
        {"update to a duplicate", [&](auto& m) { m.updateBinding(1, on3); }, u"3a 3n 3c"_s},
        {"remove", [](auto& m) { m.removeBinding(0); }, u"4b 3c"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        MouseButtonManager& manager = start({bound(3, u"a"_s), bound(4, u"b"_s), bound(3, u"c"_s)});
        QStringList seen;
        QObject::connect(&manager, &MouseButtonManager::bindingsWillChange, &manager, [&] {
            seen << summary(manager);
        });
        one.operation(manager);
        EXPECT_EQ(summary(manager), one.after);
        EXPECT_EQ(
            manager.bindings().contains(on3) + manager.bindings().contains(on4) +
                manager.bindings().contains(on5),
            one.after.contains(u'n'))
            << "a replacement brings its id";
        EXPECT_EQ(seen, QStringList{u"3a 4b 3c"_s});
        EXPECT_EQ(defaults_.data(key), encodedList(manager.bindings()));
    }
}

TEST_F(MouseButtonManagerTest, AnEditCountsFromTheNextPress) {
    // Left and right are never asked for, another button once.
    MouseButtonManager& manager = start({bound(1, u"l"_s), bound(-1, u"n"_s)});
    manager.startMonitoring();
    manager.startMonitoring();
    EXPECT_TRUE(wanted().isEmpty());
    manager.addBinding(bound(3, u"a"_s));
    EXPECT_EQ(openedBy(3), QStringList{u"a"_s});
    EXPECT_TRUE(swallowed_);
    EXPECT_TRUE(openedBy(4).isEmpty());
    EXPECT_FALSE(swallowed_);

    manager.addBinding(bound(4, u"b"_s));
    const auto* kept = inputGrants_.grants.front();
    manager.updateBinding(3, bound(3, u"c"_s));
    EXPECT_EQ(inputGrants_.grants.front(), kept) << "what stays wanted is never given back";
    EXPECT_EQ(openedBy(3), QStringList{u"a"_s}) << "the first in the list";
    EXPECT_EQ(wanted(), QList<std::int64_t>{3});

    manager.removeBinding(2);
    opened_.clear();
    inputGrants_.sendButton(3);
    manager.removeBinding(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(opened_, QStringList{u"c"_s}) << "what was bound at the press";
    EXPECT_TRUE(wanted().isEmpty());
    EXPECT_TRUE(openedBy(3).isEmpty());
    EXPECT_FALSE(swallowed_);
}

} // namespace
} // namespace velmora
