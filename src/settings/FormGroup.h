#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace velmora {

/// A group of an editor's form: a heading over a box of rows, each a label beside its control. The
/// labels of all forms end at one line.
class FormGroup : public QWidget {
    Q_OBJECT
public:
    explicit FormGroup(const QString& heading);

    /// Appends a row of a label, in line with the first line of the controls, and these beside each
    /// other; what is not `stretched` keeps its width. The label names the first one.
    QLabel* addRow(const QString& label, const QList<QWidget*>& controls, QWidget* stretched);
    /// Appends a row of a label and a control as wide as there is room.
    QLabel* addRow(const QString& label, QWidget* control) {
        return addRow(label, {control}, control);
    }
    /// Appends a row of a control alone, as wide as there is room unless aligned.
    void addRow(QWidget* control, Qt::Alignment alignment = {});

    /// Height in points of a control of one line.
    static constexpr int controlHeight = 26;
    /// Width in points of the pickers.
    static constexpr int pickerWidth = 200;

Q_SIGNALS:
    /// For those who fill the group: what it holds has changed.
    void changed();

private:
    QVBoxLayout* rows_;
};

/// A text field of one line for any text, with its accessible name.
QLineEdit* textField(const QString& text, const QString& placeholder, const QString& name);

} // namespace velmora
