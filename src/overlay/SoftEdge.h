#pragma once

#include <QWidget>

namespace velmora {

/// Lies over one end of a strip that goes on there: what is below fades into the bar's ground
/// towards that end. Takes no mouse events.
class SoftEdge : public QWidget {
    Q_OBJECT
public:
    enum class Side { left, right };

    SoftEdge(Side side, QWidget* strip);

    /// Covers the end of the strip as far as `hidden` points beyond it ask for: all of the edge's
    /// width at most, nothing when the strip ends here.
    void setHiddenWidth(double hidden);

    /// Points.
    static constexpr int maximumWidth = 24;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Side side_;
};

} // namespace velmora
