// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qsci/qsciprinter.h>

#include <QString>

namespace Quillbox {

/// Prints an editor's text; each page is headed by the file's name and the page's number.
class EditorPrinter final : public QsciPrinter {
  public:
    explicit EditorPrinter(const QString &fileName);

    /// Pages drawn so far.
    int PageCount() const { return PageCount_; }

    void formatPage(QPainter &painter, bool drawing, QRect &area, int pageNumber) override;

  private:
    QString FileName_;
    int PageCount_ = 0;
};

} // namespace Quillbox
