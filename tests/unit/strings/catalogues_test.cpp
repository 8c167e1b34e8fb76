// The text catalogues: every language says everything, with the placeholders that the code fills.

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString sources = QStringLiteral(VELMORA_SOURCES);

/// The texts of a language by key.
QHash<QString, QString> catalogue(const QString& language) {
    QFile file(sources + u"/resources/strings/velmora_%1.ts"_s.arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    QHash<QString, QString> texts;
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"message"_s) {
            key = xml.attributes().value(u"id"_s).toString();
            EXPECT_FALSE(texts.contains(key)) << key.toStdString();
        }
        if (xml.isStartElement() && xml.name() == u"translation"_s)
            texts.insert(key, xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

QStringList placeholders(const QString& text) {
    QStringList found;
    static const QRegularExpression placeholder(u"%L?\\d+|%n"_s);
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    return found;
}

TEST(Catalogues, SayTheSameInEveryLanguage) {
    const auto english = catalogue(u"en"_s);
    const auto filled = [](const QString& key) -> QStringList {
        if (key == "version_format"_L1)
            return {u"%1"_s, u"%2"_s}; // the short version first
        static const QRegularExpression takesOne(
            u"^action_desc_|_format$|^picker_app_show_all$|^trust_message_extensions$"_s);
        return takesOne.match(key).hasMatch() ? QStringList{u"%1"_s} : QStringList();
    };
    for (const QString& language :
         {u"en"_s, u"ja"_s, u"de"_s, u"fr"_s, u"es"_s, u"zh_CN"_s, u"ko"_s}) {
        SCOPED_TRACE(language.toStdString());
        const auto texts = catalogue(language);
        for (auto text = english.begin(); text != english.end(); ++text) {
            SCOPED_TRACE(text.key().toStdString());
            EXPECT_FALSE(texts.value(text.key()).trimmed().isEmpty());
            EXPECT_EQ(placeholders(texts.value(text.key())), filled(text.key()));
        }
        EXPECT_EQ(texts.size(), english.size());
    }
}

TEST(Catalogues, KnowEveryKeyThatTheCodeAsksFor) {
    const auto english = catalogue(u"en"_s);
    const QRegularExpression use(u"localizedString\\(\\s*\"([^\"]+)\"\\s*\\)"_s);
    QSet<QString> keys;
    for (QDirIterator files(
             sources + u"/src"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
             QDirIterator::Subdirectories);
         files.hasNext();) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto uses = use.globalMatch(text); uses.hasNext();)
            keys.insert(uses.next().captured(1));
    }
    EXPECT_GT(keys.size(), 40);
    for (const QString& key : keys)
        EXPECT_TRUE(english.contains(key)) << key.toStdString();
}

} // namespace
