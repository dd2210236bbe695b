// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class CommandState;
class Dialogs;
class MainWindow;
class TabStrip;
struct Document;
struct DocumentRegistry;

/// The File menu's commands on documents.
class DocumentCommands {
  public:
    DocumentCommands(DocumentRegistry &registry, MainWindow &mainWindow, TabStrip &tabs,
                     Dialogs &dialogs, CommandState &commandState);

    /// An untitled document on a tab of its own. A second request that arrives while one runs is
    /// ignored.
    void NewDocument();
    /// Opens the file, or activates the document that shows it already, whatever the letter case of
    /// the path. An empty path asks for the file. A file that cannot be read leaves no document;
    /// the editor control has told why.
    void OpenDocument(const QString &path);
    /// Closes the current document without asking.
    void CloseDocument();
    void SaveDocument();
    void SaveDocumentAs();
    /// Saves every document that has a name, modified or not, under its window's caption.
    void SaveNamedDocuments();

    void mnuArchivo_Cerrar_Click();
    void mnuArchivo_CerrarTodo_Click();
    void mnuArchivo_Imprimir_Click();

  private:
    bool RefuseWhenFull();
    void AddDocumentSlot();
    Document &AddDocument();
    void AddSelectedTab();
    int FindDocument(const QString &path) const;
    bool ActivateOpenDocument(const QString &path);
    void LoadDocument(const QString &path);
    void TakeBackDocument(int previous);
    void MoveContents(int from, int to);
    void ActivateAfterClosing();
    void ShowModified(Document &document);

    DocumentRegistry &Registry_;
    MainWindow &MainWindow_;
    TabStrip &Tabs_;
    Dialogs &Dialogs_;
    CommandState &CommandState_;
    bool NewDocumentGuard_ = false;
};

} // namespace Quillbox
