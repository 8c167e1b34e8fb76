#pragma once

#include <QDBusConnection>
#include <QList>
#include <QRect>
#include <QString>

namespace velmora::test {

/// What a screen reader is told about the program, over the session's own bus. The program has to
/// be started with accessibilitySetting.
class AccessibleTree {
public:
    static constexpr auto accessibilitySetting = "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1";

    /// One at a time. Throws when the session has no accessibility service.
    explicit AccessibleTree(const QString& busAddress);
    ~AccessibleTree();

    struct Element {
        QString name;
        QRect place; ///< on the screen, in pixels
    };
    /// Everything the program shows now, parents before their children.
    QList<Element> elements() const;
    /// The names of all of it that have one.
    QStringList names() const;
    /// Where the innermost element of that name is that can be seen; empty when there is none.
    QRect placeOf(const QString& name) const;

private:
    QDBusConnection bus_;
};

} // namespace velmora::test
