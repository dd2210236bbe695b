// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/LanguageTools.h"

#include "documents/FileNames.h"
#include "state/DocumentRegistry.h"
#include "state/settings.h"
#include "surfaces/Programs.h"

namespace Quillbox {
namespace {

QString Quoted(const QString &text) { return u'"' + text + u'"'; }

QString PathOf(const Document &document) { return document.Directory + document.FileName; }

} // namespace

LanguageTools::LanguageTools(const Settings &settings, Programs &programs)
    : Settings_(settings)
    , Programs_(programs) {}

void LanguageTools::SetCompilerPath() {
    Programs_.SetVariable(QStringLiteral("blitzpath"),
                          QStringLiteral("C:\\Archivos de programa\\Blitz3D\\"));
}

QString LanguageTools::CompileLine(const Document &document) const {
    return Settings_.FenixCPath + u' ' + Quoted(PathOf(document));
}

QString LanguageTools::BuildLine(const Document &document, const QString &executable) const {
    return Settings_.FenixCPath + QStringLiteral(" -o ") + Quoted(executable) + u' ' +
           Quoted(PathOf(document));
}

/// Belongs to the Fenix tools: juego.prg is run as juego.dcb, and juego.bb asks for juegodcb.
void LanguageTools::Run(const Document &document) {
    Programs_.Start(
        Settings_.MainPath + QStringLiteral("FXI.exe ") +
            Quoted(document.Directory + WithoutLast(document.FileName, 3) + QStringLiteral("dcb")),
        WindowStyle::Minimized);
}

} // namespace Quillbox
