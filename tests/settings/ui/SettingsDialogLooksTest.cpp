// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Version.h"
#include "fakes/HoldsInOrder.h"
#include "settings/ui/SettingsDialogProgram.h"

#include "fakes/Waiting.h"

#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QToolBar>

#include <algorithm>

namespace Quillbox {
namespace {

class TheLookOfTheSettingsDialog : public SettingsDialogProgram {};

struct ControlRow {
    const char *Name;
    const char *Caption;
    const char *ToolTip;
};

constexpr ControlRow Controls[] = {
    {"txtCompilerPath", "", ""},
    {"cmdCompilerBrowse", "Examinar", "Buscar el archivo..."},
    {"Label1",
     "Ruta del archivo FXC.exe. Este directorio es necesario para ejecutar tus proramas en Fenix. ",
     ""},
    {"txtHelpPath", "", ""},
    {"cmdHelpBrowse", "Examinar", "Buscar el archivo..."},
    {"Label2",
     "Ruta del archivo principal de ayuda de Fenix. Sin él no podrías usar la ayuda contextual, ni "
     "siquiera acceder a la ayuda normalmente.",
     ""},
    {"lstItems", "", "Seleccione ítem a modificar"},
    {"ptbMuestra", "", "Color de muestra"},
    {"cmdCambiarColor", "Cambiar", "Cambia el color del ítem seleccionado"},
    {"lstStyles", "", "Estilo de la fuente"},
    {"Label4", "Fuente:", ""},
    {"lblFont", "10 Courier", "Muestra de la fuente"},
    {"cmdCambiarFuente", "Cambiar Fuente", "Cambia la fuente del editor"},
    {"chkColorSyntax", "Colorear &Sintaxis", "Activa/Desactiva el color de la sintaxis"},
    {"chkLineNumbers", "Números de Línea", "¿Mostrar los números de línea?"},
    {"Label3", "Tamaño Tabulador:", ""},
    {"txtTabSize", "", "Tamaño del tabulador (por defecto 3)"},
    {"spnTabSize", "", "Tamaño del tabulador (por defecto 3)"},
    {"chkQuickHelp", "Mostrar ayuda rápida", "Muestra la ayuda rápida en la barra de estado"},
    {"chkFunciones", "Procesos", "Recopila la lista de funciones programadas"},
    {"chkLabels", "Etiquetas", "Recopila una lista de etiquetas establecidas"},
    {"chkTypes", "Types", "Recopila una lista de Types definidos"},
    {"Label5", "Quillbox v" QUILLBOX_VERSION " · El equipo de Quillbox · 2026", ""},
    {"cmdAceptar", "&Aceptar", "Guarda los cambios"},
    {"cmdAplicar", "A&plicar", "Aplica los cambios"},
    {"cmdCancelar", "&Cancelar", "Cancela los cambios"},
    {"cmdAyuda", "A&yuda", "Muestra la ayuda de la configuración"},
};

QString CaptionOf(const QWidget &widget) {
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label ? label->text() : QString();
}

TEST_F(TheLookOfTheSettingsDialog, NamesEveryControlWithItsCaptionAndToolTip) {
    InSettings({[](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Configuración..."));
        for (const ControlRow &row : Controls) {
            const auto *control = dialog.findChild<QWidget *>(QString::fromUtf8(row.Name));
            ASSERT_NE(control, nullptr) << row.Name;
            EXPECT_EQ(CaptionOf(*control), QString::fromUtf8(row.Caption)) << row.Name;
            EXPECT_EQ(control->toolTip(), QString::fromUtf8(row.ToolTip)) << row.Name;
            if (*row.ToolTip != '\0') {
                EXPECT_EQ(control->accessibleDescription(), control->toolTip()) << row.Name;
            }
        }
    }});
}

TEST_F(TheLookOfTheSettingsDialog, HasItsGroupsOnThreeTabs) {
    InSettings({[](QDialog &dialog) {
        const auto *tabs = dialog.findChild<QTabWidget *>();
        QStringList captions;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            captions.append(tabs->tabText(tab));
            for (const auto *group : tabs->widget(tab)->findChildren<QGroupBox *>())
                captions.append(u'+' + group->title());
        }
        EXPECT_EQ(captions,
                  QStringList({"Directorios", "+Directorio del programa", "+Directorio de la ayuda",
                               "Editor", "+Fuente/Colores", "+Otros", "Contexto", "+Ayuda",
                               "+Recopilación de Datos"}));
        EXPECT_EQ(tabs->currentIndex(), 0);
    }});
}

/// Further check boxes stand with those of their frame.
TEST_F(TheLookOfTheSettingsDialog, IsWalkedFromTopToBottomWithTab) {
    InSettings({[](QDialog &dialog) {
        const QRegularExpression control(QStringLiteral("^(txt|cmd|lst|chk)"));
        std::vector<std::string> names;
        for (const QWidget *widget = dialog.nextInFocusChain(); widget != &dialog;
             widget = widget->nextInFocusChain())
            if ((widget->focusPolicy() & Qt::TabFocus) &&
                control.match(widget->objectName()).hasMatch())
                names.push_back(widget->objectName().toStdString());
        const std::vector<std::string> known = {
            "txtCompilerPath", "cmdCompilerBrowse", "txtHelpPath", "cmdHelpBrowse",
            "lstItems",        "cmdCambiarColor",   "lstStyles",   "cmdCambiarFuente",
            "chkColorSyntax",  "chkLineNumbers",    "txtTabSize",  "chkQuickHelp",
            "chkFunciones",    "chkLabels",         "chkTypes",    "cmdAceptar",
            "cmdAplicar",      "cmdCancelar",       "cmdAyuda"};
        EXPECT_THAT(names, HoldsInOrder(known));
    }});
}

TEST_F(TheLookOfTheSettingsDialog, BindsItsLabelsToTheirFields) {
    InSettings({[](QDialog &dialog) {
        for (const auto &[label, field] :
             {std::pair("Label1", "txtCompilerPath"), std::pair("Label2", "txtHelpPath"),
              std::pair("Label3", "txtTabSize"), std::pair("Label4", "cmdCambiarFuente")})
            EXPECT_EQ(In<QLabel>(dialog, label).buddy(), &In<QWidget>(dialog, field)) << label;
    }});
}

TEST_F(TheLookOfTheSettingsDialog, ShowsAllEntriesOfItsListsWithoutScrolling) {
    InSettings({[](QDialog &dialog) { ShowTab(dialog, 1); },
                [](QDialog &dialog) {
                    for (const char *name : {"lstItems", "lstStyles"}) {
                        const auto &list = In<QListWidget>(dialog, name);
                        EXPECT_EQ(list.verticalScrollBar()->maximum(), 0) << name;
                        EXPECT_LE(list.sizeHintForColumn(0), list.viewport()->width()) << name;
                    }
                }});
}

TEST_F(TheLookOfTheSettingsDialog, ClipsNoText) {
    InSettings({[](QDialog &dialog) {
        for (int tab = 0; tab < 3; ++tab) {
            ShowTab(dialog, tab);
            DoWhatIsDue();
            for (const auto *widget : dialog.findChildren<QWidget *>()) {
                if (!widget->isVisible() || CaptionOf(*widget).isEmpty() ||
                    widget->objectName() == QStringLiteral("lblFont"))
                    continue;
                const QSize needed = widget->hasHeightForWidth()
                                         ? QSize(0, widget->heightForWidth(widget->width()))
                                         : widget->sizeHint();
                EXPECT_GE(widget->height(), needed.height()) << qPrintable(widget->objectName());
                EXPECT_GE(widget->width(), needed.width()) << qPrintable(widget->objectName());
            }
        }
    }});
}

TEST_F(TheLookOfTheSettingsDialog, KeepsItsSizeWithALongPathAndALargeFont) {
    QSize usual;
    InSettings({[&](QDialog &dialog) { usual = dialog.size(); }});
    Options().HelpPath = QString(400, u'w');
    Options().Font = QString(200, u'w');
    Options().FontSize = 200;
    InSettings({[&](QDialog &dialog) {
        EXPECT_EQ(dialog.size(), usual);
        EXPECT_LE(dialog.minimumSizeHint().width(), usual.width());
        EXPECT_EQ(In<QLineEdit>(dialog, "txtHelpPath").cursorPosition(), 0);
    }});
}

TEST_F(TheLookOfTheSettingsDialog, OpensFromItsToolButtonToo) {
    const QList<QAction *> tools = Find<QToolBar>(QStringLiteral("tbEstandar"))->actions();
    const auto opener =
        std::ranges::find(tools, QStringLiteral("Configuración"), &QAction::toolTip);
    ASSERT_NE(opener, tools.end());
    InSettings({[](QDialog &dialog) { EXPECT_TRUE(dialog.isModal()); }}, **opener);
}

} // namespace
} // namespace Quillbox
