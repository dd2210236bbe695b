// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class DocumentWindow;
struct DocumentRegistry;
struct LanguageWords;
struct Settings;

/// The one-line help for the word at the caret, shown in the first status panel.
class QuickHelp {
  public:
    QuickHelp(const Settings &settings, const LanguageWords &words, DocumentRegistry &registry);

    /// Shows the help line of a keyword, or the declaration of one of the document's functions. A
    /// word that is neither leaves the panel as it was.
    void UpdateQuickHelp(DocumentWindow &window);

  private:
    void ShowKeywordHelp(DocumentWindow &window, const QString &word);
    void ShowDeclaration(DocumentWindow &window, const QString &word);
    void Remember(const QString &word, int index);

    const Settings &Settings_;
    const LanguageWords &Words_;
    DocumentRegistry &Registry_;
    QString LastQuickHelpWord_;
    int LastQuickHelpIndex_ = 0;
};

} // namespace Quillbox
