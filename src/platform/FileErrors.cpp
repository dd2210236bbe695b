// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"

namespace Quillbox {

namespace {

struct ProblemText {
    FileProblem Problem;
    const char *WhenReading;
    const char *WhenWriting;
};

constexpr ProblemText ProblemTexts[] = {
    {FileProblem::Missing, "El archivo no existe.", "La carpeta ya no existe."},
    {FileProblem::NoPermission, "No hay permiso para leer el archivo.",
     "No hay permiso para escribir en la carpeta."},
    {FileProblem::NotAllowed, "El sistema no permite leer el archivo.",
     "El sistema no permite escribir el archivo."},
    {FileProblem::WriteProtected, "El archivo está protegido contra escritura.",
     "El archivo está protegido contra escritura."},
    {FileProblem::IsFolder, "El nombre pertenece a una carpeta.",
     "El nombre pertenece a una carpeta."},
    {FileProblem::IsDevice, "El nombre pertenece a un dispositivo y no a un archivo.",
     "El nombre pertenece a un dispositivo y no a un archivo."},
    {FileProblem::NameTooLong, "El nombre del archivo es demasiado largo.",
     "El nombre del archivo es demasiado largo."},
    {FileProblem::InvalidName, "El nombre del archivo no es válido.",
     "El nombre del archivo no es válido."},
    {FileProblem::LinkToNowhere, "El archivo es un enlace que no lleva a ninguna parte.",
     "El archivo es un enlace que no lleva a ninguna parte."},
    {FileProblem::DiskWriteProtected, "El disco está protegido contra escritura.",
     "El disco está protegido contra escritura."},
    {FileProblem::DiskFull, "El disco está lleno.", "El disco está lleno."},
    {FileProblem::QuotaUsedUp, "Se ha agotado el espacio de disco del usuario.",
     "Se ha agotado el espacio de disco del usuario."},
    {FileProblem::TooLarge, "El archivo es demasiado grande.",
     "El archivo es demasiado grande para este disco."},
    {FileProblem::DiskFailed, "El disco ha fallado al leer.", "El disco ha fallado al escribir."},
    {FileProblem::DiskNotReady, "El disco no está preparado.", "El disco no está preparado."},
    {FileProblem::InUse, "Otro programa está usando el archivo.",
     "Otro programa está usando el archivo."},
    {FileProblem::TooManyOpenFiles, "Hay demasiados archivos abiertos.",
     "Hay demasiados archivos abiertos."},
};

FileError Failure(FileProblem problem, int code, const char *ProblemText::*text) {
    for (const ProblemText &candidate : ProblemTexts) {
        if (candidate.Problem == problem)
            return {problem, code, QString::fromUtf8(candidate.*text)};
    }
    return {problem, code, QStringLiteral("El sistema ha devuelto el error número %1.").arg(code)};
}

} // namespace

FileError ReadFailure(int code) {
    return Failure(ProblemOf(code), code, &ProblemText::WhenReading);
}

FileError WriteFailure(int code) { return WriteFailure(ProblemOf(code), code); }

FileError WriteFailure(FileProblem problem, int code) {
    return Failure(problem, code, &ProblemText::WhenWriting);
}

} // namespace Quillbox
