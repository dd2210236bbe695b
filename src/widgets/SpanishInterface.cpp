// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/SpanishInterface.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Quillbox {

SpanishInterface::SpanishInterface(const QString &appDir) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    const QString name = QStringLiteral("qtbase_es");
    if (Translator_.load(name, appDir + QStringLiteral("translations")) ||
        Translator_.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&Translator_);
}

} // namespace Quillbox
