#pragma once

#include <QAbstractButton>
#include <QPointF>
#include <optional>

namespace velmora {

/// A button without a bezel: its subclass paints the label. A press that became a drag fires
/// nothing. Never put a title into text(): an ampersand in it would become a shortcut.
class PlainButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit PlainButton(QWidget* parent = nullptr);

    /// How far in points the pointer may move from the press for the release to count as a click;
    /// absent: anywhere inside the button.
    void setDragThreshold(std::optional<double> threshold) { dragThreshold_ = threshold; }

    /// The tool tip's text, shown literally; empty for none.
    virtual QString help() const { return {}; }

    bool isHovered() const { return isHovered_; }

protected:
    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void setHovered(bool hovered);
    /// Lets the button up once the pointer has moved too far.
    void judgeDrag(const QMouseEvent& event);

    std::optional<double> dragThreshold_;
    QPointF pressPoint_; ///< global
    bool isDragged_ = false;
    bool isHovered_ = false;
};

} // namespace velmora
