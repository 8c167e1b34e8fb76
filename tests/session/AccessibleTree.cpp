#include "session/AccessibleTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

constexpr auto busName = "accessibility";

/// An object of a program on the accessibility bus.
struct Reference {
    QString service;
    QString path;
};

QVariantList
ask(const QDBusConnection& bus, const Reference& object, const QString& interface,
    const QString& method, const QVariantList& arguments = {}) {
    auto message = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    message.setArguments(arguments);
    return bus.call(message).arguments();
}

QString addressOfAccessibilityBus(const QString& sessionBus) {
    const auto name = u"session"_s;
    const auto bus = QDBusConnection::connectToBus(sessionBus, name);
    const auto answer =
        ask(bus, {u"org.a11y.Bus"_s, u"/org/a11y/bus"_s}, u"org.a11y.Bus"_s, u"GetAddress"_s);
    QDBusConnection::disconnectFromBus(name);
    if (answer.isEmpty() || answer[0].toString().isEmpty())
        throw std::runtime_error("no accessibility bus");
    return answer[0].toString();
}

QList<Reference> childrenOf(const QDBusConnection& bus, const Reference& object) {
    const auto answer = ask(bus, object, u"org.a11y.atspi.Accessible"_s, u"GetChildren"_s);
    QList<Reference> children;
    if (answer.isEmpty() || !answer[0].canConvert<QDBusArgument>())
        return children;
    const auto list = answer[0].value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        Reference child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        children.append(child);
    }
    list.endArray();
    return children;
}

AccessibleTree::Element elementOf(const QDBusConnection& bus, const Reference& object) {
    AccessibleTree::Element element;
    const auto name =
        ask(bus, object, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
            {u"org.a11y.atspi.Accessible"_s, u"Name"_s});
    if (!name.isEmpty())
        element.name = name[0].value<QDBusVariant>().variant().toString();
    const auto place =
        ask(bus, object, u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {quint32(0)});
    if (!place.isEmpty() && place[0].canConvert<QDBusArgument>()) {
        const auto extents = place[0].value<QDBusArgument>();
        int x = 0, y = 0, width = 0, height = 0;
        extents.beginStructure();
        extents >> x >> y >> width >> height;
        extents.endStructure();
        element.place = {x, y, width, height};
    }
    return element;
}

void collect(
    const QDBusConnection& bus, const Reference& object, QList<AccessibleTree::Element>& all) {
    all.append(elementOf(bus, object));
    for (const Reference& child : childrenOf(bus, object))
        collect(bus, child, all);
}

} // namespace

AccessibleTree::AccessibleTree(const QString& busAddress)
    : bus_(QDBusConnection::connectToBus(
          addressOfAccessibilityBus(busAddress), QLatin1String(busName))) {}

AccessibleTree::~AccessibleTree() {
    QDBusConnection::disconnectFromBus(QLatin1String(busName));
}

QList<AccessibleTree::Element> AccessibleTree::elements() const {
    const Reference registry{u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s};
    QList<Element> all;
    for (const Reference& program : childrenOf(bus_, registry))
        collect(bus_, program, all);
    return all;
}

QStringList AccessibleTree::names() const {
    QStringList names;
    for (const Element& element : elements()) {
        if (!element.name.isEmpty())
            names.append(element.name);
    }
    return names;
}

QRect AccessibleTree::placeOf(const QString& name) const {
    QRect place;
    for (const Element& element : elements()) {
        if (element.name == name && !element.place.isEmpty())
            place = element.place;
    }
    return place;
}

} // namespace velmora::test
