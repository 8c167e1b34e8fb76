#include "app/TermsOfServiceWindow.h"

#include "app/TermsOfServiceView.h"
#include "foundation/LocalizedString.h"
#include "foundation/UserDefaults.h"
#include "platform/Session.h"
#include "platform/WindowActivation.h"
#include "viewkit/WindowTheme.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

namespace velmora {
namespace {

constexpr QSize contentSize(500, 400);

/// A window with a title bar only: the two buttons inside are the only ways out.
class TitledWindow : public QWidget {
public:
    TitledWindow()
        : QWidget(
              nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowStaysOnTopHint) // the floating window level
    {}

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

TermsOfServiceWindow& TermsOfServiceWindow::shared() {
    static auto* instance =
        new TermsOfServiceWindow(UserDefaults::standard(), Session::current().windowActivation());
    return *instance;
}

TermsOfServiceWindow::TermsOfServiceWindow(UserDefaults& defaults, WindowActivation& activation)
    : defaults_(defaults), activation_(activation) {}

TermsOfServiceWindow::~TermsOfServiceWindow() = default;

void TermsOfServiceWindow::show(std::function<void()> onAgree) {
    onAgreeCallback_ = std::move(onAgree);
    if (!window_) {
        window_ = std::make_unique<TitledWindow>();
        //: Terms of Service
        window_->setWindowTitle(localizedString("tos.title"));
        WindowTheme::follow(*window_);
        auto* layout = new QVBoxLayout(window_.get());
        layout->setContentsMargins(0, 0, 0, 0);
        auto* view = new TermsOfServiceView(defaults_, [this] { handleAgree(); });
        layout->addWidget(view);
        view->setFocus();
        window_->setFixedSize(contentSize.expandedTo(window_->minimumSizeHint()));
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            QRect frame = window_->rect();
            frame.moveCenter(screen->geometry().center());
            window_->move(frame.topLeft());
        }
    }
    activation_.makeKeyAndOrderFront(*window_);
}

void TermsOfServiceWindow::handleAgree() {
    if (!window_)
        return; // the same answer again, before the window has gone
    // The button that brought us here belongs to the window: it goes in the next turn.
    window_->hide();
    window_.release()->deleteLater();
    if (onAgreeCallback_)
        onAgreeCallback_();
}

} // namespace velmora
