#include "foundation/LocalizedString.h"

#include <QCoreApplication>
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
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(QLocale(language), u":/strings/velmora"_s, u"_"_s)) {
            QCoreApplication::installTranslator(translator);
            return;
        }
        delete translator;
    }
}

} // namespace velmora
