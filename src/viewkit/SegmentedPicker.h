#pragma once

#include <QStringList>
#include <QWidget>

class QButtonGroup;

namespace velmora {

/// A row of joined segments of which one is chosen; the arrow keys move the choice.
class SegmentedPicker : public QWidget {
    Q_OBJECT
public:
    explicit SegmentedPicker(const QStringList& titles);

    /// Position of the chosen segment.
    int currentIndex() const;
    void setCurrentIndex(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QButtonGroup* const segments_;
};

} // namespace velmora
