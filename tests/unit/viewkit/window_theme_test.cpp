#include "viewkit/WindowTheme.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace velmora {
namespace {

/// As WCAG 2 defines it.
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(WindowTheme, TextCanBeReadAndFocusBeSeenInBothSchemes) {
    for (const auto scheme : {ColorScheme::dark, ColorScheme::light}) {
        WindowTheme::setColorScheme(scheme);
        const WindowTheme::Colors& c = WindowTheme::colors();
        const struct {
            QColor text;
            QList<QColor> grounds;
        } cases[] = {
            {c.text, {c.window, c.base, c.button, c.buttonHover, c.buttonPressed, c.selected}},
            {c.secondaryText, {c.window, c.base}},
            {c.accentText, {c.window, c.base}},
            {c.danger, {c.window, c.base, c.button, c.buttonHover, c.buttonPressed}},
            {Qt::white, {c.accent, c.accentHover, c.dangerFill}},
        };
        for (const auto& [text, grounds] : cases) {
            for (const QColor& ground : grounds)
                EXPECT_GE(contrast(text, ground), 4.5)
                    << text.name().toStdString() << " on " << ground.name().toStdString();
        }
        for (const QColor& ground : {c.window, c.base})
            EXPECT_GE(contrast(c.accent, ground), 3);
    }
}

} // namespace
} // namespace velmora
