#pragma once

#include <QFileDialog>
#include <QWidget>
#include <functional>

namespace velmora {

class Exchange;

/// The buttons that import from a file and export to one, which the desktop's own dialog chooses.
class ExchangeButtons : public QWidget {
    Q_OBJECT
public:
    /// `exchange` outlives the buttons.
    explicit ExchangeButtons(const Exchange& exchange);

private:
    void chooseFile(
        QFileDialog::AcceptMode mode, const QString& title,
        std::function<void(const QString& path)> use);
    /// Says that it failed, and why, unless `reason` is empty.
    void tell(const QString& failure, const QString& reason);
};

} // namespace velmora
