#pragma once

#include "platform/Accessibility.h"

namespace velmora::test {

/// A permission that the test gives and takes.
class FakeAccessibility final : public Accessibility {
public:
    bool trusted = true;
    mutable int questions = 0; ///< how often it was asked for, with and without prompt

    bool isProcessTrusted() const override {
        ++questions;
        return trusted;
    }
    QStringList missingExtensions() const override { return {}; }
};

} // namespace velmora::test
