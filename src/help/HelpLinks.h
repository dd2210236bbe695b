// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class DocumentCommands;
class Programs;
class SymbolScanner;
struct DocumentRegistry;
enum class NavigationAnswer;

/// Where the links of the help pages lead.
class HelpLinks {
  public:
    HelpLinks(DocumentRegistry &registry, DocumentCommands &documents, SymbolScanner &scanner,
              Programs &programs);

    /// Sources, addresses that end in exactly ".bb", are opened as documents. Web and mail
    /// addresses go to the person's own programs. Files are shown by the viewer, nothing else is.
    NavigationAnswer htmlAyuda_BeforeNavigate(const QString &url);

  private:
    void OpenSource(const QString &path);
    void LoadAgain();

    DocumentRegistry &Registry_;
    DocumentCommands &Documents_;
    SymbolScanner &Scanner_;
    Programs &Programs_;
};

/// The path of a file address, percent-decoded once as UTF-8, with this system's separators. Any
/// other address comes back as it is.
QString LocalPathOf(const QString &url);

} // namespace Quillbox
