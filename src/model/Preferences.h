#pragma once

#include "model/HotKey.h"

#include <QObject>
#include <optional>

namespace velmora {

class UserDefaults;

/// All preferences at once; those without a value stay as they are.
struct PreferenceValues {
    std::optional<HotKey> hotKey;
    std::optional<bool> barAtTopEdge;
    std::optional<bool> keepsWindowsBelow;
};

/// What the user has chosen for the bar, kept beside the lists. Main thread only.
class Preferences : public QObject {
    Q_OBJECT
public:
    /// `defaults` outlives the preferences.
    explicit Preferences(UserDefaults& defaults) : defaults_(defaults) {}

    /// The process-wide instance over the standard defaults.
    static Preferences& shared();

    /// What shows and hides the bar; Option+M at first. One that is not usable is not stored.
    HotKey hotKey() const;
    void setHotKey(const HotKey& hotKey);

    /// Whether the bar lies at the screen's top edge even where the desktop has a panel there;
    /// below that panel at first.
    bool barAtTopEdge() const;
    void setBarAtTopEdge(bool atTopEdge);

    /// Whether maximised windows stay below the bar while it is shown; they do at first.
    bool keepsWindowsBelow() const;
    void setKeepsWindowsBelow(bool keeps);

    PreferenceValues values() const;
    void take(const PreferenceValues& values);

Q_SIGNALS:
    /// After a change of any of them.
    void changed();

private:
    void set(const QString& key, bool value);

    UserDefaults& defaults_;
};

} // namespace velmora
