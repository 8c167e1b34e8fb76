#pragma once

#include <QLabel>

namespace velmora {

class UserDefaults;

/// Says that what is set is not stored, and why, as long as that lasts; otherwise not there.
class StorageNotice : public QLabel {
    Q_OBJECT
public:
    /// `text` has one placeholder, for the reason. `defaults` outlives the label.
    StorageNotice(const UserDefaults& defaults, const QString& text);
};

} // namespace velmora
