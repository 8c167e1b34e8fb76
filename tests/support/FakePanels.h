#pragma once

#include "platform/Panel.h"
#include "support/FakeScreens.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace velmora::test {

/// Panels that nobody sees and a pointer that only they feel.
class FakePanels final : public Panels {
public:
    explicit FakePanels(const FakeScreens& screens) : screens_(screens) {}

    /// Whether a panel's content is to be seen at a point (bottom-left origin).
    bool shows(const QPointF& point) const { return panelAt(point); }

    /// Presses the left button there; what is below a panel that is not presented feels nothing.
    void click(const QPointF& point) {
        if (const FakePanel* panel = panelAt(point)) {
            const QRectF frame = panel->frame();
            const QPointF local(point.x() - frame.left(), frame.bottom() - point.y());
            QMouseEvent press(
                QEvent::MouseButtonPress, local, local, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(panel->view.get(), &press);
        }
    }

    /// What the newest panel was asked for last.
    const PanelRequest& lastRequest() const { return panels_.back()->wanted; }

    std::unique_ptr<Panel> create(std::unique_ptr<QWidget> view) override {
        return std::make_unique<FakePanel>(*this, std::move(view));
    }

private:
    struct FakePanel final : Panel {
        FakePanel(FakePanels& session, std::unique_ptr<QWidget> content)
            : panels(session), view(std::move(content)) {
            panels.panels_.push_back(this);
            QObject::connect(&panels.screens_, &Screens::changed, view.get(), [this] { place(); });
        }
        ~FakePanel() override { std::erase(panels.panels_, this); }
        void request(const PanelRequest& request) override {
            wanted = request;
            place();
        }
        QRectF frame() const {
            const auto& screen = panels.screens_.screen;
            if (!screen || !wanted.presented)
                return {};
            const QRectF strip = screen->frame;
            return {0, strip.height() - wanted.height, strip.width(), wanted.height};
        }
        void place() { view->setGeometry(QRectF({}, frame().size()).toRect()); }

        FakePanels& panels;
        PanelRequest wanted;
        const std::unique_ptr<QWidget> view;
    };

    const FakePanel* panelAt(const QPointF& point) const {
        const auto found = std::ranges::find_if(
            panels_, [&](const FakePanel* panel) { return panel->frame().contains(point); });
        return found == panels_.end() ? nullptr : *found;
    }

    const FakeScreens& screens_;
    std::vector<FakePanel*> panels_;
};

} // namespace velmora::test
