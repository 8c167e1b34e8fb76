#pragma once

#include "overlay/DraggableNSScrollView.h"

#include <functional>

namespace velmora {

/// A draggable strip around a content value, which the widget class `HostingView` shows: it has the
/// value's type as `RootView` and takes a new one by setRootView(). Bridges the value to widgets.
template<typename HostingView>
class DraggableHorizontalScrollView {
public:
    using Content = typename HostingView::RootView;

    /// Builds the content once, at once.
    explicit DraggableHorizontalScrollView(const std::function<Content()>& build)
        : content(build()) {}

    const Content content;

    /// A new strip that shows the content at its natural size.
    DraggableNSScrollView* makeNSView(QWidget* parent) const {
        auto* view = new DraggableNSScrollView(parent);
        auto* host = new HostingView;
        host->setRootView(content);
        view->setDocumentView(host);
        return view;
    }

    /// Shows the content in a strip made before; nothing if that shows something else.
    void updateNSView(DraggableNSScrollView& view) const {
        if (auto* host = qobject_cast<HostingView*>(view.documentView()))
            host->setRootView(content);
    }
};

} // namespace velmora
