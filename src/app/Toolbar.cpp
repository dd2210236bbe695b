// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Toolbar.h"

#include "state/DocumentRegistry.h"
#include "state/Project.h"

namespace Quillbox {
namespace {

constexpr ToolButton Separator = {"", "", ""};

constexpr ToolButton Buttons[] = {
    {"Nuevo", "mnuArchivo_Nuevo", "nuevo"},
    {"Abrir", "mnuArchivo_Abrir", "abrir"},
    {"Guardar", "mnuArchivo_Guardar", "guardar"},
    {"Imprimir", "mnuArchivo_Imprimir", "imprimir"},
    {"Cerrar", "mnuArchivo_Cerrar", "cerrar"},
    Separator,
    {"Configuración", "mnuHerramientas_Configuracion", "configuracion"},
    {"Buscar", "mnuEdicion_BuscarReemplazar", "buscar"},
    Separator,
    {"Deshacer", "mnuEdicion_Deshacer", "deshacer"},
    {"Rehacer", "mnuEdicion_Rehacer", "rehacer"},
    {"Cortar", "mnuEdicion_Cortar", "cortar"},
    {"Copiar", "mnuEdicion_Copiar", "copiar"},
    {"Pegar", "mnuEdicion_Pegar", "pegar"},
    Separator,
    {"Ejecutar", "mnuPrograma_Ejecutar", "ejecutar"},
    Separator,
    {"Abrir Proyecto", "mnuArchivo_AbrirProyecto", "abrir_proyecto"},
    {"Información del Proyecto", "tbEstandar_InformacionProyecto", "informacion_del_proyecto",
     ToolButtonCondition::ProjectOpen},
    {"Tareas Pendientes", "tbEstandar_TareasPendientes", "tareas_pendientes",
     ToolButtonCondition::ProjectOpen},
    {"Explorador Media", "mnuHerramientas_ExploradorMedia", "explorador_media"},
    Separator,
    {"Inicio", "tbEstandar_Inicio", "inicio"},
    {"Atrás", "tbEstandar_Atras", "atras", ToolButtonCondition::HelpPageActive},
    {"Adelante", "tbEstandar_Adelante", "adelante", ToolButtonCondition::HelpPageActive},
    Separator,
    {"Salir", "mnuArchivo_Salir", "salir"},
};

} // namespace

std::span<const ToolButton> ToolButtons() { return Buttons; }

ToolbarDispatch::ToolbarDispatch(const CommandTable &commands, const DocumentRegistry &registry,
                                 const Project &project)
    : Commands_(commands)
    , Registry_(registry)
    , Project_(project) {}

void ToolbarDispatch::tbEstandar_ButtonClick(const QString &tooltip) {
    for (const ToolButton &button : Buttons) {
        if (tooltip.isEmpty() || tooltip != QString::fromUtf8(button.Tooltip))
            continue;
        const auto command = Commands_.find(QString::fromUtf8(button.Command));
        if (command != Commands_.end() && Holds(button.Condition))
            command->second();
        return;
    }
}

bool ToolbarDispatch::Holds(ToolButtonCondition condition) const {
    switch (condition) {
    case ToolButtonCondition::ProjectOpen:
        return !Project_.File.isEmpty();
    case ToolButtonCondition::HelpPageActive:
        return Registry_.CurrentIndex == 0;
    case ToolButtonCondition::Always:
        break;
    }
    return true;
}

} // namespace Quillbox
