#pragma once

#include <QObject>
#include <functional>

namespace velmora {

/// Puts a task off until something of ours is on the screen, so that the task does not delay it:
/// runs it once, in the turn after the next painting of a window, or after a second without any.
/// Deletes itself then, or with its parent before. Main thread only.
class AfterFirstPaint : public QObject {
public:
    AfterFirstPaint(QObject* parent, std::function<void()> task);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void run();

    std::function<void()> task_;
};

} // namespace velmora
