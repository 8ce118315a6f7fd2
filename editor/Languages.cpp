#include "editor/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tessel::editor {

QVector<Language> languages()
{
    return {
        {QString(), QString()},
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("es"), QStringLiteral("Español")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("pt"), QStringLiteral("Português")},
    };
}

void speak(QCoreApplication &application, const QString &code)
{
    const QLocale locale = code.isEmpty() ? QLocale::system() : QLocale(code);
    const auto install = [&](const QString &name, const QString &folder) {
        auto *translator = new QTranslator(&application);
        if (translator->load(locale, name, QStringLiteral("_"), folder))
            QCoreApplication::installTranslator(translator);
        else
            delete translator;
    };
    install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("tessel"), QStringLiteral(":/translations"));
}

} // namespace tessel::editor
