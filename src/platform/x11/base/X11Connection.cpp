#include "platform/x11/base/X11Connection.h"

#include "foundation/Log.h"
#include "platform/x11/base/Xcb.h"

#include <QAbstractEventDispatcher>
#include <cstdlib>
#include <poll.h>
#include <vector>
#include <xcb/randr.h>
#include <xcb/shape.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

[[noreturn]] void endWithTheServer() {
    Log::write(u"The X server went away; Velmora ends."_s);
    Log::flush();
    std::_Exit(EXIT_FAILURE);
}

/// A request that the server refused, and nobody asked how it went: a fault of ours.
void logError(const xcb_generic_error_t& error) {
    Log::write(u"⚠️ X error %1, request %2.%3, resource 0x%4"_s.arg(
        QString::number(error.error_code), QString::number(error.major_code),
        QString::number(error.minor_code), QString::number(error.resource_id, 16)));
}

QtMessageHandler previousHandler = nullptr;
int watchedDescriptor = -1;

/// Whether the server has closed our connection.
bool hasServerGone() {
    pollfd descriptor{watchedDescriptor, 0, 0};
    return ::poll(&descriptor, 1, 0) == 1 && descriptor.revents & (POLLHUP | POLLERR);
}

/// Qt's own connection may notice first. It then complains about each answer that does not come,
/// and runs destructors that would need the server.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (hasServerGone() || message.startsWith("The X11 connection broke"_L1))
        endWithTheServer();
    if (previousHandler)
        previousHandler(type, context, message);
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open() {
    int screenNumber = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        return nullptr;
    }
    // One wait for all of them instead of one each.
    for (xcb_extension_t* extension :
         {&xcb_input_id, &xcb_randr_id, &xcb_shape_id, &xcb_test_id, &xcb_xkb_id})
        xcb_prefetch_extension_data(connection, extension);
    return std::unique_ptr<X11Connection>(new X11Connection(connection, screenNumber));
}

X11Connection::X11Connection(xcb_connection_t* connection, int screenNumber)
    : connection_(connection), screenNumber_(screenNumber) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screenNumber-- > 0)
        xcb_screen_next(&screens);
    root_ = screens.data->root;
}

X11Connection::~X11Connection() {
    QObject::disconnect(aboutToBlock_);
    watchedDescriptor = -1; // poll() passes over it
    notifier_.reset();
    xcb_disconnect(connection_);
}

xcb_atom_t X11Connection::atom(const QByteArray& name) {
    prepareAtoms({name});
    return atoms_.value(name);
}

void X11Connection::prepareAtoms(const QByteArrayList& names) {
    std::vector<std::pair<QByteArray, xcb_intern_atom_cookie_t>> questions;
    for (const QByteArray& name : names) {
        if (!atoms_.contains(name))
            questions.emplace_back(
                name,
                xcb_intern_atom(
                    connection_, false, static_cast<uint16_t>(name.size()), name.constData()));
    }
    for (const auto& [name, question] : questions) {
        const XcbOwned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection_, question, nullptr));
        atoms_.insert(name, reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE));
    }
}

xcb_window_t X11Connection::makeHiddenWindow() {
    const xcb_window_t window = xcb_generate_id(connection_);
    xcb_create_window(
        connection_, 0, window, root_, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

void X11Connection::Subscription::end() {
    // Emptied rather than erased: a listener may end its own subscription during delivery.
    if (connection_)
        *position_ = nullptr;
    connection_ = nullptr;
}

X11Connection::Subscription& X11Connection::Subscription::operator=(Subscription&& other) noexcept {
    if (this == &other)
        return *this;
    end();
    connection_ = std::exchange(other.connection_, nullptr);
    position_ = other.position_;
    return *this;
}

X11Connection::Subscription X11Connection::subscribe(Listener listener) {
    return {*this, listeners_.insert(listeners_.end(), std::move(listener))};
}

void X11Connection::startDelivery() {
    watchedDescriptor = xcb_get_file_descriptor(connection_);
    if (!previousHandler)
        previousHandler = qInstallMessageHandler(handleMessage);
    notifier_ = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(connection_), QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { deliverEvents(); });
    aboutToBlock_ = QObject::connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
        [this] { deliverEvents(); });
}

void X11Connection::deliverEvents() {
    if (delivering_)
        return;
    delivering_ = true;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
        if (event->response_type == 0) {
            logError(reinterpret_cast<const xcb_generic_error_t&>(*event));
            continue;
        }
        for (auto listener = listeners_.begin(); listener != listeners_.end(); ++listener) {
            // A copy: the listener may end its own subscription while it runs.
            if (const Listener current = *listener)
                current(*event);
        }
    }
    listeners_.remove_if([](const Listener& listener) { return !listener; });
    delivering_ = false;
    xcb_flush(connection_);
    if (xcb_connection_has_error(connection_))
        endWithTheServer();
}

} // namespace velmora
