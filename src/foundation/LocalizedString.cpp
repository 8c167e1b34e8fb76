#include "foundation/LocalizedString.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace velmora {

QString localizedString(const char* key) {
    return qtTrId(key);
}

void installLocalizedStrings() {
    const auto install = [](const QString& file) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(file))
            QCoreApplication::installTranslator(translator);
    };
    const QString folder = u":/strings/velmora_"_s;
    install(folder + u"en.qm"_s);
    // Translators installed later are asked first, so what a language lacks comes in English.
    // System language names are ordered by preference ("de-AT", "de").
    for (const QString& language : QLocale::system().uiLanguages()) {
        const QString code = language.section(u'-', 0, 0);
        if (code == "en"_L1)
            return;
        const auto installFor = [&](const QString& name, const QString& directory) {
            auto* translator = new QTranslator(QCoreApplication::instance());
            if (translator->load(QLocale(language), name, u"_"_s, directory))
                return QCoreApplication::installTranslator(translator);
            delete translator;
            return false;
        };
        if (installFor(u"velmora"_s, u":/strings"_s)) {
            // The menu a text field opens with the secondary button is Qt's, and so are its texts.
            installFor(u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return;
        }
    }
}

} // namespace velmora
