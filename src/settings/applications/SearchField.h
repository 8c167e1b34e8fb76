#pragma once

#include <QLineEdit>
#include <QWidget>

namespace velmora {

class PlainButton;

/// A text field for a search: a magnifying glass, the text, and while there is some, a button that
/// clears it.
class SearchField : public QWidget {
    Q_OBJECT
public:
    explicit SearchField(const QString& placeholder);

    QLineEdit& edit() { return edit_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit edit_;
    PlainButton* clearButton_;
};

} // namespace velmora
