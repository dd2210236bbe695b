// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"

#include <cerrno>

namespace Quillbox {

namespace {

struct ErrorText {
    int Code;
    const char *WhenReading;
    const char *WhenWriting;
};

constexpr ErrorText ErrorTexts[] = {
    {ENOENT, "El archivo no existe.", "La carpeta ya no existe."},
    {ENOTDIR, "El archivo no existe.", "La carpeta ya no existe."},
    {EACCES, "No hay permiso para leer el archivo.", "No hay permiso para escribir en la carpeta."},
    {EPERM, "El sistema no permite leer el archivo.", "El sistema no permite escribir el archivo."},
    {EISDIR, "El nombre pertenece a una carpeta.", "El nombre pertenece a una carpeta."},
    {EROFS, "El disco está protegido contra escritura.",
     "El disco está protegido contra escritura."},
    {ENOSPC, "El disco está lleno.", "El disco está lleno."},
    {EDQUOT, "Se ha agotado el espacio de disco del usuario.",
     "Se ha agotado el espacio de disco del usuario."},
    {EFBIG, "El archivo es demasiado grande.", "El archivo es demasiado grande para este disco."},
    {EIO, "El disco ha fallado al leer.", "El disco ha fallado al escribir."},
    {ENAMETOOLONG, "El nombre del archivo es demasiado largo.",
     "El nombre del archivo es demasiado largo."},
    {ELOOP, "El archivo es un enlace que no lleva a ninguna parte.",
     "El archivo es un enlace que no lleva a ninguna parte."},
    {EINVAL, "El nombre del archivo no es válido.", "El nombre del archivo no es válido."},
    {ENXIO, "El nombre pertenece a un dispositivo y no a un archivo.",
     "El nombre pertenece a un dispositivo y no a un archivo."},
    {EMFILE, "Hay demasiados archivos abiertos.", "Hay demasiados archivos abiertos."},
    {ENFILE, "Hay demasiados archivos abiertos.", "Hay demasiados archivos abiertos."},
    {EBUSY, "Otro programa está usando el archivo.", "Otro programa está usando el archivo."},
    {ETXTBSY, "Otro programa está usando el archivo.", "Otro programa está usando el archivo."},
};

FileError Failure(int code, const char *ErrorText::*text) {
    for (const ErrorText &candidate : ErrorTexts) {
        if (candidate.Code == code)
            return {code, QString::fromUtf8(candidate.*text)};
    }
    return {code, QStringLiteral("El sistema ha devuelto el error número %1.").arg(code)};
}

} // namespace

FileError ReadFailure(int code) { return Failure(code, &ErrorText::WhenReading); }

FileError WriteFailure(int code) { return Failure(code, &ErrorText::WhenWriting); }

} // namespace Quillbox
