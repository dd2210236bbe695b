// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"

#include "platform/windows/WindowsApi.h"

namespace Quillbox {

namespace {

struct ErrorText {
    DWORD Code;
    const char *WhenReading;
    const char *WhenWriting;
};

constexpr ErrorText ErrorTexts[] = {
    {ERROR_FILE_NOT_FOUND, "El archivo no existe.", "El archivo no existe."},
    {ERROR_PATH_NOT_FOUND, "El archivo no existe.", "La carpeta ya no existe."},
    {ERROR_ACCESS_DENIED, "No hay permiso para leer el archivo.",
     "No hay permiso para escribir en la carpeta."},
    {ERROR_FILE_READ_ONLY, "El archivo está protegido contra escritura.",
     "El archivo está protegido contra escritura."},
    {ERROR_DIRECTORY, "El nombre pertenece a una carpeta.", "El nombre pertenece a una carpeta."},
    {ERROR_WRITE_PROTECT, "El disco está protegido contra escritura.",
     "El disco está protegido contra escritura."},
    {ERROR_DISK_FULL, "El disco está lleno.", "El disco está lleno."},
    {ERROR_HANDLE_DISK_FULL, "El disco está lleno.", "El disco está lleno."},
    {ERROR_SHARING_VIOLATION, "Otro programa está usando el archivo.",
     "Otro programa está usando el archivo."},
    {ERROR_LOCK_VIOLATION, "Otro programa está usando el archivo.",
     "Otro programa está usando el archivo."},
    {ERROR_NOT_READY, "El disco no está preparado.", "El disco no está preparado."},
    {ERROR_CRC, "El disco ha fallado al leer.", "El disco ha fallado al escribir."},
    {ERROR_READ_FAULT, "El disco ha fallado al leer.", "El disco ha fallado al escribir."},
    {ERROR_WRITE_FAULT, "El disco ha fallado al leer.", "El disco ha fallado al escribir."},
    {ERROR_INVALID_NAME, "El nombre del archivo no es válido.",
     "El nombre del archivo no es válido."},
    {ERROR_FILENAME_EXCED_RANGE, "El nombre del archivo es demasiado largo.",
     "El nombre del archivo es demasiado largo."},
    {ERROR_BAD_DEV_TYPE, "El nombre pertenece a un dispositivo y no a un archivo.",
     "El nombre pertenece a un dispositivo y no a un archivo."},
};

FileError Failure(int code, const char *ErrorText::*text) {
    for (const ErrorText &candidate : ErrorTexts) {
        if (candidate.Code == static_cast<DWORD>(code))
            return {code, QString::fromUtf8(candidate.*text)};
    }
    return {code, QStringLiteral("El sistema ha devuelto el error número %1.").arg(code)};
}

} // namespace

FileError ReadFailure(int code) { return Failure(code, &ErrorText::WhenReading); }

FileError WriteFailure(int code) { return Failure(code, &ErrorText::WhenWriting); }

} // namespace Quillbox
