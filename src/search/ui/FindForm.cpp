// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindForm.h"

#include "search/ui/HistoryBox.h"
#include "widgets/AnsiLineEdit.h"
#include "widgets/Controls.h"

#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {

namespace {

class Builder {
  public:
    explicit Builder(QDialog &dialog)
        : Dialog_(dialog)
        , Outer_(*new QVBoxLayout(&dialog))
        , Grid_(*new QGridLayout)
        , Buttons_(*new QVBoxLayout) {
        auto *upper = new QHBoxLayout;
        upper->addLayout(&Grid_, 1);
        upper->addSpacing(Grid_.horizontalSpacing());
        upper->addLayout(&Buttons_);
        Outer_.addLayout(upper);
    }

    HistoryBox *AddBox(const char *name, const char *caption) {
        auto *box = new HistoryBox(&Dialog_);
        box->setObjectName(QStringLiteral("cmb") + QLatin1String(name));
        box->lineEdit()->setObjectName(QStringLiteral("txt") + QLatin1String(name));
        auto *label = new QLabel(QString::fromUtf8(caption), &Dialog_);
        label->setBuddy(box);
        const int row = Grid_.rowCount();
        Grid_.addWidget(label, row, 0);
        Grid_.addWidget(box, row, 1);
        return box;
    }

    QCheckBox *AddCheck(const char *name, const char *caption, const char *toolTip = "") {
        auto *check = new QCheckBox(QString::fromUtf8(caption), &Dialog_);
        check->setObjectName(QLatin1String(name));
        check->setToolTip(QString::fromUtf8(toolTip));
        Grid_.addWidget(check, Grid_.rowCount(), 1);
        return check;
    }

    /// A click leaves the keyboard where it is, so that the next term can be typed at once.
    QPushButton *AddButton(const char *name, const char *caption) {
        auto *button = NewButton(QLatin1String(name), QString::fromUtf8(caption));
        button->setFocusPolicy(Qt::TabFocus);
        Buttons_.addWidget(button);
        return button;
    }

    void EndColumns() {
        Grid_.setRowStretch(Grid_.rowCount(), 1);
        Buttons_.addStretch(1);
    }

    /// Keeps the height of two lines, so that the dialog does not jump with each message.
    QLabel *AddResult() {
        auto *result = new QLabel(&Dialog_);
        result->setObjectName(QStringLiteral("lblResultado"));
        result->setTextFormat(Qt::PlainText);
        result->setWordWrap(true);
        result->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        result->setMinimumHeight(2 * result->fontMetrics().lineSpacing());
        Lower_.addWidget(result, 1);
        return result;
    }

    QLabel *AddCount() {
        auto *count = new QLabel(&Dialog_);
        count->setObjectName(QStringLiteral("lblCoincidencias"));
        count->setTextFormat(Qt::PlainText);
        count->setAlignment(Qt::AlignRight | Qt::AlignTop);
        Lower_.addWidget(count);
        Outer_.addLayout(&Lower_);
        return count;
    }

  private:
    QDialog &Dialog_;
    QVBoxLayout &Outer_;
    QGridLayout &Grid_;
    QVBoxLayout &Buttons_;
    QHBoxLayout &Lower_ = *new QHBoxLayout;
};

constexpr const char *AboutExpressions =
    "<p>Cada coincidencia está dentro de una línea; «^» y «$» son su principio y su final.</p>"
    "<p>En el reemplazo, \\0 es la coincidencia y \\1 a \\9 sus grupos (también $0 a $9), \\n es "
    "un fin de línea y \\t un tabulador.</p>";

constexpr const char *AboutSelection =
    "Busca y reemplaza solo en el texto que está seleccionado al marcar esta casilla.";

} // namespace

FindForm BuildFindForm(QDialog &dialog) {
    Builder builder(dialog);
    FindForm form{};
    form.Term = builder.AddBox("Buscar", "&Buscar:");
    form.Replacement = builder.AddBox("Reemplazar", "&Reemplazar por:");
    KeepOneAnsiLine(*form.Replacement->lineEdit());
    form.MatchCase = builder.AddCheck("chkMayusculas", "Distinguir &mayúsculas y minúsculas");
    form.WholeWord = builder.AddCheck("chkPalabraCompleta", "&Palabra completa");
    form.IsExpression = builder.AddCheck("chkExpresion", "E&xpresión regular", AboutExpressions);
    form.InSelection = builder.AddCheck("chkSeleccion", "Solo en la se&lección", AboutSelection);
    form.Wrap = builder.AddCheck("chkVuelta", "&Dar la vuelta al llegar al final");
    form.Next = builder.AddButton("cmdSiguiente", "&Siguiente");
    form.Next->setDefault(true);
    form.Previous = builder.AddButton("cmdAnterior", "&Anterior");
    form.Replace = builder.AddButton("cmdReemplazar", "Reempla&zar");
    form.ReplaceAll = builder.AddButton("cmdReemplazarTodo", "Reemplazar &todo");
    form.Close = builder.AddButton("cmdCerrar", "&Cerrar");
    builder.EndColumns();
    form.Result = builder.AddResult();
    form.Count = builder.AddCount();
    return form;
}

} // namespace Quillbox
