// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stands where the editor's run command looks for a program that runs compiled games. Only the
// structure checker is installed, so there is nothing to run; this says so and names the remedy.
#include <QApplication>
#include <QMessageBox>
#include <QTranslator>

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    QTranslator translator;
    if (translator.load("qtbase_es", QApplication::applicationDirPath() + "/translations"))
        QApplication::installTranslator(&translator);

    const QString text = "El programa no tiene errores de estructura.\n\n"
                         "Para ejecutarlo hace falta el compilador. Su ruta se elige en "
                         "Herramientas > Configuración.";
    QMessageBox notice(QMessageBox::Information, "Quillbox", text);
    notice.setObjectName("RunNotice");
    notice.exec();
    return 0;
}
