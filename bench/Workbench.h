// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SourceText.h"

#include "editor/ui/LanguageCatalogue.h"
#include "editor/ui/ScintillaEditor.h"
#include "search/ui/FindDialog.h"
#include "state/Language.h"
#include "surfaces/Dialogs.h"

#include <QCoreApplication>

#include <cstdlib>
#include <memory>

namespace Quillbox::Bench {

constexpr std::size_t Megabyte = 1000 * 1000;
constexpr std::size_t LargeText = 100 * Megabyte;

/// A message during a measurement means that there is nothing to measure.
class NoDialogs final : public Dialogs {
  public:
    MessageAnswer ShowMessage(const Message &) override { std::abort(); }
    std::optional<QString> ShowOpen(const FileChooser &) override { std::abort(); }
    std::optional<QString> ShowSave(const FileChooser &) override { std::abort(); }
    std::optional<QString> ShowInput(const InputBox &) override { std::abort(); }
    std::optional<Color> ShowColor(Color) override { std::abort(); }
    std::optional<FontChoice> ShowFont(const FontChoice &) override { std::abort(); }
};

/// What an editor needs around it.
struct Workbench {
    Workbench() { Languages.RegisterLanguage(Quillbox::SourceLanguage.Name, SourceLanguage()); }

    std::unique_ptr<ScintillaEditor> NewEditor() {
        auto editor = std::make_unique<ScintillaEditor>(Languages, Messages);
        editor->SetLanguage(Quillbox::SourceLanguage.Name);
        editor->SetLineNumbers(true);
        editor->resize(1000, 700);
        editor->show();
        QCoreApplication::processEvents();
        return editor;
    }

    LanguageCatalogue Languages;
    NoDialogs Messages;
};

void MeasureLoading();
void MeasureMemory(const QString &program);
/// What the process that MeasureMemory starts does: prints its bytes of memory per byte of text.
void PrintMemoryOfColouredText();
void MeasureColouring();
void MeasureLongLine();
void MeasureDocuments();
void MeasureFinding();
/// Prints the milliseconds that it takes to replace "uno", which stands there 1,000,000 times.
void MeasureReplacingIn(const QString &path);
void MeasureSymbols();
void MeasureMediaBrowser();
/// Only the first start in a process is that of a program that a person starts.
void MeasureStartUp();
/// `reading`: seconds that reading the same bytes takes.
void MeasureOpeningInTheProgram(double reading);

/// What this process holds in memory now.
double ResidentBytes();

} // namespace Quillbox::Bench
