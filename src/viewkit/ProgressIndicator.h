#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace velmora {

/// Turning spokes that say that something is under way. Wakes the program only while shown.
class ProgressIndicator : public QWidget {
    Q_OBJECT
public:
    ProgressIndicator();

    QSize sizeHint() const override { return {32, 32}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QBasicTimer timer_;
    int step_ = 0;
};

} // namespace velmora
