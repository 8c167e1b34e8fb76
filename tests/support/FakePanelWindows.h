#pragma once

#include "platform/PanelWindow.h"

#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>
#include <gtest/gtest.h>
#include <vector>

namespace velmora::test {

/// What became of one panel window; outlives the window itself.
struct PanelWindowRecord {
    QRectF contentRect;
    QStringList
        calls; ///< "setLevel 25": the setters with their values, in the order of their calls
    bool onScreen = false;
    QPointer<QWidget> contentView;
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

    void setLevel(int level) override { note("setLevel", level); }
    void setCollectionBehavior(unsigned behavior) override {
        note("setCollectionBehavior", behavior);
    }
    void setBackgroundColor(const QColor& color) override {
        note("setBackgroundColor", color.name(QColor::HexArgb));
    }
    void setHasShadow(bool hasShadow) override { note("setHasShadow", hasShadow); }
    void setOpaque(bool opaque) override { note("setOpaque", opaque); }
    void setIgnoresMouseEvents(bool ignores) override { note("setIgnoresMouseEvents", ignores); }
    void setAlphaValue(double alpha) override { note("setAlphaValue", alpha); }
    void orderFrontRegardless() override { note("orderFrontRegardless", record_->onScreen = true); }
    void setContentView(QWidget* view) override {
        view->setGeometry(QRectF({0, 0}, record_->contentRect.size()).toRect());
        record_->contentView = view;
    }

private:
    void note(const char* call, const QVariant& value) {
        record_->calls += QString::fromLatin1(call) + u' ' + value.toString();
    }

    std::shared_ptr<PanelWindowRecord> record_;
};

inline std::unique_ptr<PanelWindow>
FakePanelWindows::create(const QRectF& contentRect, unsigned styleMask) {
    auto record = std::make_shared<PanelWindowRecord>();
    record->contentRect = contentRect;
    EXPECT_EQ(styleMask, 0x8080U);
    windows.push_back(record);
    return std::make_unique<FakePanelWindow>(record);
}

} // namespace velmora::test
