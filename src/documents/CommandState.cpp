// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/CommandState.h"

#include "surfaces/EventLoop.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

const QString WindowMenu = QStringLiteral("mnuVentana");

const QString DocumentCommandNames[] = {
    QStringLiteral("mnuEdicion"),
    QStringLiteral("mnuPrograma"),
    QStringLiteral("mnuArchivo_Guardar"),
    QStringLiteral("mnuArchivo_GuardarComo"),
    QStringLiteral("mnuArchivo_Imprimir"),
    QStringLiteral("mnuArchivo_Cerrar"),
    WindowMenu,
};

const QString DocumentToolButtons[] = {
    QStringLiteral("Guardar"),  QStringLiteral("Imprimir"), QStringLiteral("Cerrar"),
    QStringLiteral("Buscar"),   QStringLiteral("Deshacer"), QStringLiteral("Rehacer"),
    QStringLiteral("Cortar"),   QStringLiteral("Copiar"),   QStringLiteral("Pegar"),
    QStringLiteral("Ejecutar"),
};

} // namespace

CommandState::CommandState(MainWindow &mainWindow, EventLoop &eventLoop)
    : MainWindow_(mainWindow)
    , EventLoop_(eventLoop) {}

void CommandState::UpdateCommandState(bool enabled) {
    for (const QString &name : DocumentCommandNames)
        MainWindow_.EnableCommand(name, enabled);
    for (const QString &tooltip : DocumentToolButtons)
        MainWindow_.EnableToolButtons(tooltip, enabled);
    // Only windows: a document that is being made is counted already but has no window yet.
    EventLoop_.ProcessWindowEvents();
}

void CommandState::EnableWindowMenu() { MainWindow_.EnableCommand(WindowMenu, true); }

} // namespace Quillbox
