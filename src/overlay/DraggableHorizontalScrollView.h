#pragma once

#include "overlay/ButtonRow.h"
#include "overlay/DraggableNSScrollView.h"

namespace velmora {

/// What a draggable strip shows, and the way from that to widgets.
struct DraggableHorizontalScrollView {
    ButtonRow::RootView content;

    /// A new strip that shows the content at its natural size.
    DraggableNSScrollView* makeNSView(QWidget* parent) const {
        auto* view = new DraggableNSScrollView(parent);
        auto* row = new ButtonRow;
        row->setRootView(content);
        view->setDocumentView(row);
        return view;
    }

    /// Shows the content in a strip made before; nothing if that shows something else.
    void updateNSView(DraggableNSScrollView& view) const {
        if (auto* row = qobject_cast<ButtonRow*>(view.documentView()))
            row->setRootView(content);
    }
};

} // namespace velmora
