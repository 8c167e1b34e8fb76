#pragma once

#include <QString>

namespace velmora {

/// Whether a program starts with the user's desktop session: an entry of theirs by the Desktop
/// Application Autostart Specification. Asks the file system each time. Thread-safe.
class LoginItem {
public:
    enum class State {
        off, ///< there is no entry
        on,
        switchedOff, ///< there is one that says not to be started: desktops' settings do that
    };

    /// `entry` is the path of the entry's file, `program` of what it starts.
    LoginItem(QString entry, QString program);
    /// That of this program, for the user.
    static LoginItem ofThisProgram();

    State state() const;
    /// Writes the entry anew or removes it. Throws a FileError.
    void setEnabled(bool enabled) const;

private:
    QString entry_;
    QString program_;
};

} // namespace velmora
