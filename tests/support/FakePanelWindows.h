#pragma once

#include "platform/PanelWindow.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <vector>

namespace velmora::test {

/// What became of one panel window; outlives the window itself.
struct PanelWindowRecord {
    QRectF contentRect;
    unsigned styleMask = 0;
    int level = 0;
    unsigned collectionBehavior = 0;
    QColor backgroundColor = Qt::white;
    bool hasShadow = true;
    bool opaque = true;
    bool ignoresMouseEvents = true;
    double alphaValue = 1.0;
    bool onScreen = false;
    QPointer<QWidget> contentView;
    QStringList calls; ///< the names of the setters, in the order of their calls
};

/// Makes panel windows that only take notes.
class FakePanelWindows : public PanelWindows {
public:
    std::unique_ptr<PanelWindow> create(const QRectF& contentRect, unsigned styleMask) override;

    std::vector<std::shared_ptr<PanelWindowRecord>> windows; ///< in the order of their creation
};

class FakePanelWindow : public PanelWindow {
public:
    explicit FakePanelWindow(std::shared_ptr<PanelWindowRecord> record)
        : record_(std::move(record)) {}
    ~FakePanelWindow() override {
        record_->onScreen = false;
        delete record_->contentView;
    }

    void setLevel(int level) override { note("setLevel", record_->level = level); }
    void setCollectionBehavior(unsigned behavior) override {
        note("setCollectionBehavior", record_->collectionBehavior = behavior);
    }
    void setBackgroundColor(const QColor& color) override {
        note("setBackgroundColor", record_->backgroundColor = color);
    }
    void setHasShadow(bool hasShadow) override {
        note("setHasShadow", record_->hasShadow = hasShadow);
    }
    void setOpaque(bool opaque) override { note("setOpaque", record_->opaque = opaque); }
    void setIgnoresMouseEvents(bool ignores) override {
        note("setIgnoresMouseEvents", record_->ignoresMouseEvents = ignores);
    }
    void setAlphaValue(double alpha) override {
        note("setAlphaValue", record_->alphaValue = alpha);
    }
    void orderFrontRegardless() override { note("orderFrontRegardless", record_->onScreen = true); }
    void setContentView(QWidget* view) override {
        view->setGeometry(QRectF({0, 0}, record_->contentRect.size()).toRect());
        note("setContentView", record_->contentView = view);
    }

private:
    template<typename Value>
    void note(const char* call, const Value&) {
        record_->calls += QString::fromLatin1(call);
    }

    std::shared_ptr<PanelWindowRecord> record_;
};

inline std::unique_ptr<PanelWindow>
FakePanelWindows::create(const QRectF& contentRect, unsigned styleMask) {
    auto record = std::make_shared<PanelWindowRecord>();
    record->contentRect = contentRect;
    record->styleMask = styleMask;
    windows.push_back(record);
    return std::make_unique<FakePanelWindow>(record);
}

} // namespace velmora::test
