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
    const QHash<QString, QStringList> filled{
        {u"action_desc_launch"_s, {u"%1"_s}},      {u"action_desc_open"_s, {u"%1"_s}},
        {u"action_desc_execute"_s, {u"%1"_s}},     {u"action_desc_key"_s, {u"%1"_s}},
        {u"mouse_click_btn_format"_s, {u"%1"_s}},  {u"picker_app_show_all"_s, {u"%1"_s}},
        {u"trust_message_extensions"_s, {u"%1"_s}},
        {u"version_format"_s, {u"%1"_s, u"%2"_s}}, // the short version first
        {u"settings_not_stored_format"_s, {u"%1"_s}},
        {u"tos.not_stored_format"_s, {u"%1"_s}},
    };
    for (const QString& language :
         {u"en"_s, u"ja"_s, u"de"_s, u"fr"_s, u"es"_s, u"zh_CN"_s, u"ko"_s}) {
        SCOPED_TRACE(language.toStdString());
        const auto texts = catalogue(language);
        for (auto text = english.begin(); text != english.end(); ++text) {
            SCOPED_TRACE(text.key().toStdString());
            EXPECT_FALSE(texts.value(text.key()).trimmed().isEmpty());
            EXPECT_EQ(placeholders(texts.value(text.key())), filled.value(text.key()));
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
