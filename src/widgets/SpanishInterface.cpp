// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/SpanishInterface.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Quillbox {

/// Of two translators that know a text, the one that came last is heard.
SpanishInterface::SpanishInterface(const QString &appDir) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    const QString folder = appDir + QStringLiteral("translations");
    const QString name = QStringLiteral("qtbase_es");
    if (Qts_.load(name, folder) ||
        Qts_.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&Qts_);
    if (Own_.load(QStringLiteral("quillbox_es"), folder))
        QCoreApplication::installTranslator(&Own_);
}

} // namespace Quillbox
