// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

namespace Quillbox {
namespace {

/// Symbol tables and the Scanning flag belong to a position's scan, which the next repaint repeats:
/// no file command touches them, not even when it moves the documents.
class SymbolTables : public FakeProgram {
  protected:
    SymbolTables() {
        Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
        for (int position = 1; position <= 3; ++position)
            Mark(Registry.Documents[position], position);
    }

    static void Mark(Document &document, int position) {
        document.FunctionNames[0] = QString("function%1").arg(position);
        document.FunctionLines[0] = QString::number(10 * position);
        document.TypeNames[255] = QString("type%1").arg(position);
        document.TypeLines[255] = QString::number(20 * position);
        document.Scanning = position == 2;
    }
    void ExpectMarks() {
        for (int position = 1; position <= 3; ++position) {
            const Document &document = Registry.Documents[position];
            EXPECT_EQ(document.FunctionNames[0], QString("function%1").arg(position));
            EXPECT_EQ(document.FunctionLines[0], QString::number(10 * position));
            EXPECT_EQ(document.TypeNames[255], QString("type%1").arg(position));
            EXPECT_EQ(document.TypeLines[255], QString::number(20 * position));
            EXPECT_EQ(document.Scanning, position == 2);
        }
    }
};

TEST_F(SymbolTables, StayAtTheirPositionsWhenDocumentsMoveDown) {
    Walk.tabDocuments_Click(2);

    Documents.CloseDocument();

    ASSERT_EQ(Registry.Documents[1].FileName, QString("b.prg"));
    ExpectMarks();
}

TEST_F(SymbolTables, StayWhenADocumentIsMadeOrOpenedAtTheirPosition) {
    Documents.CloseDocument();
    Documents.NewDocument();
    ExpectMarks();

    Documents.CloseDocument();
    Documents.OpenDocument("/j/d.prg");
    ExpectMarks();
}

TEST_F(SymbolTables, StayWhenDocumentsAreSaved) {
    Questions.Choices = {"/k/nuevo.prg"};

    Documents.SaveDocument();
    Documents.SaveDocumentAs();
    Documents.SaveNamedDocuments();

    ExpectMarks();
}

} // namespace
} // namespace Quillbox
