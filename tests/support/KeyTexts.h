#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace velmora::test {

/// As long as it lives, the texts that take a value are their key and one placeholder. The others
/// are their key, as everywhere without a catalogue.
class KeyTexts : public QTranslator {
public:
    KeyTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
        const QString text = QString::fromLatin1(key);
        const bool takesValue = text.startsWith(u"action_desc_") || text.endsWith(u"_format");
        return takesValue ? text + QStringLiteral(" %1.") : QString();
    }
};

} // namespace velmora::test
