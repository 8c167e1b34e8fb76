#pragma once

#include <QDialog>
#include <memory>

namespace velmora {

/// A dialog that belongs to one window and holds its input while it is there. Escape and the close
/// button of its frame dismiss it. The actions of the window are the sheet's too, so that their key
/// equivalents act. Main thread only.
class Sheet : public QDialog {
    Q_OBJECT
public:
    /// Shows `content` at its fixed size, centred over the window of `presenter`. Its window title
    /// names the sheet. Sheet and content are destroyed after it was dismissed, or with the window.
    static Sheet& present(QWidget& presenter, std::unique_ptr<QWidget> content);

    /// Closes the sheet that shows `content`; nothing happens when none does.
    static void dismiss(QWidget& content);

protected:
    /// Content may grow: it stays on the screen.
    void resizeEvent(QResizeEvent* event) override;

private:
    explicit Sheet(QWidget& window);
};

} // namespace velmora
