// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/RuntimeError.h"

namespace Quillbox {

RuntimeError InvalidArgument() {
    return {5, QStringLiteral("Argumento o llamada a procedimiento no válidos")};
}

RuntimeError Overflow() { return {6, QStringLiteral("Desbordamiento")}; }

RuntimeError OutOfMemory() { return {7, QStringLiteral("Memoria insuficiente")}; }

RuntimeError SubscriptOutOfRange() { return {9, QStringLiteral("Subíndice fuera del intervalo")}; }

RuntimeError FileNotFound() { return {53, QStringLiteral("No se ha encontrado el archivo")}; }

RuntimeError DeviceUnavailable() { return {68, QStringLiteral("Dispositivo no disponible")}; }

RuntimeError PermissionDenied() { return {70, QStringLiteral("Permiso denegado")}; }

RuntimeError PathAccessError() {
    return {75, QStringLiteral("Error de acceso a la ruta o al archivo")};
}

QString ErrorMessage(const RuntimeError &error) {
    return QStringLiteral("Se ha producido el error %1 en tiempo de ejecución:\n\n%2.")
        .arg(error.Number)
        .arg(error.Text);
}

} // namespace Quillbox
