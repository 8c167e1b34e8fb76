#pragma once

#include "platform/PanelWindow.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace velmora::test {

/// Panels that nobody sees and a pointer that only they feel.
class FakePanels final : public PanelWindows {
public:
    /// Whether a panel's content is to be seen at a point (bottom-left origin).
    bool shows(const QPointF& point) const { return panelAt(point); }

    /// Presses the left button there; where none is presented nothing feels it.
    void click(const QPointF& point) {
        if (const Panel* panel = panelAt(point)) {
            const QPointF local(point.x() - panel->frame.left(), panel->frame.bottom() - point.y());
            QMouseEvent press(
                QEvent::MouseButtonPress, local, local, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(panel->view, &press);
        }
    }

    std::unique_ptr<PanelWindow> create(const QRectF& contentRect) override {
        return std::make_unique<Panel>(*this, contentRect);
    }

private:
    struct Panel final : PanelWindow {
        Panel(FakePanels& session, const QRectF& rect) : frame(rect), panels(session.panels_) {
            panels.push_back(this);
        }
        ~Panel() override {
            std::erase(panels, this);
            delete view;
        }
        void setPresented(bool presented) override { isPresented = presented; }
        void setContentView(QWidget* content) override {
            delete view;
            view = content;
            view->setGeometry(QRectF(0, 0, frame.width(), frame.height()).toRect());
        }

        const QRectF frame;
        std::vector<Panel*>& panels;
        QPointer<QWidget> view;
        bool isPresented = true;
    };

    const Panel* panelAt(const QPointF& point) const {
        const auto found = std::ranges::find_if(panels_, [&](const Panel* panel) {
            return panel->frame.contains(point) && panel->isPresented && panel->view;
        });
        return found == panels_.end() ? nullptr : *found;
    }

    std::vector<Panel*> panels_;
};

} // namespace velmora::test
