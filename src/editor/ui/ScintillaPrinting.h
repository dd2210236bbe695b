// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qsci/qsciprinter.h>

#include <QString>

namespace Quillbox {

class ScintillaEditor;

/// Prints an editor's text; each page is headed by the file's name and the page's number.
class EditorPrinter final : public QsciPrinter {
  public:
    explicit EditorPrinter(const QString &fileName);

    /// Pages drawn by the last printing.
    int PageCount() const { return PageCount_; }
    /// To be called before a printing.
    void StartCounting() { PageCount_ = 0; }

    void formatPage(QPainter &painter, bool drawing, QRect &area, int pageNumber) override;

  private:
    QString FileName_;
    int PageCount_ = 0;
};

/// Shows how the text will look on paper; from there the person prints it. The preview of a long
/// text ends after MostPreviewLines.
void ShowPrintPreview(ScintillaEditor &editor, const QString &fileName);
inline constexpr int MostPreviewLines = 6000;

} // namespace Quillbox
