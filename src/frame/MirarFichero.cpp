#include "frame/MirarFichero.h"

#include "frame/AvisosDeBase.h"
#include "frame/Mensajes.h"
#include "frame/Sesion.h"
#include "store/Copias.h"
#include "store/Ficheros.h"
#include "store/Verificacion.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace pastorix {

bool MirarFichero(const QString& fichero) {
    const QString nombre = QDir::toNativeSeparators(QFileInfo(fichero).absoluteFilePath());
    const QString titulo = QStringLiteral("Pastorix: ") + QFileInfo(fichero).fileName();
    const auto ruta = Ruta(fichero.toStdString());
    try {
        // One of ours is checked before anything in it is used; one of Access is read by our own reader, which runs nothing.
        if (!EsDeAccess(ruta)) {
            QStringList faltas;
            for (const auto& f : VerificarBase(fichero.toStdString(), ClaveDeBases))
                faltas << QString::fromStdString(f);
            if (!faltas.isEmpty()) {
                Avisar(nullptr, TipoMensaje::Atencion, titulo,
                       nombre +
                           QStringLiteral(
                               "\n\nNo es una base de datos de Pastorix en buen estado. No se ha tocado."),
                       faltas.mid(0, 3).join(QLatin1Char('\n')), faltas.join(QLatin1Char('\n')));
                return false;
            }
        }
        return Preguntar(
            nullptr, titulo,
            QStringLiteral(
                "%1\n\n%2. Está en buen estado.\n\n%3\n\n¿Desea abrir Pastorix? Dentro, Archivo, Importar "
                "Datos trae lo que hay en él; aquí solo se ha mirado.")
                .arg(nombre,
                     EsDeAccess(ruta)
                         ? QStringLiteral("Una base de datos de Access de la aplicación anterior")
                         : QStringLiteral("Una base de datos de Pastorix"),
                     EnPalabras(ExaminarCopia(ruta, ClaveDeBases))),
            TipoMensaje::Informacion);
    } catch (const std::exception& error) {
        Avisar(nullptr, TipoMensaje::Atencion, titulo,
               nombre + QStringLiteral(
                            "\n\nNo es una base de datos de Pastorix que se pueda leer. No se ha tocado."),
               QString::fromUtf8(error.what()), DetalleDe(error));
        return false;
    }
}

} // namespace pastorix
