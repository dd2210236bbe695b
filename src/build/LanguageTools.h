// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Programs;
struct Document;
struct Settings;

/// The language's compiler and interpreter, as the settings name them.
class LanguageTools {
  public:
    LanguageTools(const Settings &settings, Programs &programs);

    /// Tells the compiler where it lies: a fixed text that it expects, whatever the settings say.
    void SetCompilerPath();
    /// The command line that compiles a document.
    QString CompileLine(const Document &document) const;
    /// The command line that makes an executable of a document.
    QString BuildLine(const Document &document, const QString &executable) const;
    /// Starts what a document was compiled to.
    void Run(const Document &document);

  private:
    const Settings &Settings_;
    Programs &Programs_;
};

} // namespace Quillbox
