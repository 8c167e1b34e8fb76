#pragma once

#include "foundation/Log.h"

#include <QStringList>
#include <mutex>

namespace velmora::test {

/// Collects the log's lines instead of standard error, as long as it lives.
class LogCapture {
public:
    LogCapture() {
        Log::setSink([this](const QString& line) {
            const std::scoped_lock lock(mutex_);
            lines_.append(line);
        });
    }
    ~LogCapture() { Log::setSink({}); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList lines() const {
        const std::scoped_lock lock(mutex_);
        return lines_;
    }

private:
    mutable std::mutex mutex_;
    QStringList lines_;
};

} // namespace velmora::test
