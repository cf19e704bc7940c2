#pragma once

#include <QString>

#include <exception>
#include <functional>

class QLabel;
class QWidget;

namespace pastorix {

// The one way in which the program talks to the user in boxes and file choosers. Tests, the command line and demonstrations
// install an answerer and no window appears. Under test (QStandardPaths in test mode) a box that nobody answers is reported as a
// critical message, which fails the run, instead of waiting for ever.

enum class TipoMensaje { Critico = 16, Pregunta = 32, Atencion = 48, Informacion = 64 };

// One box or chooser on its way to the user. Titles and texts are as the sheets wrote them, line breaks included.
struct Mensaje {
    enum class Clase { Aviso, Pregunta, AntesDeDejar, FicheroGuardar, Carpeta };
    Clase clase = Clase::Aviso;
    TipoMensaje tipo = TipoMensaje::Informacion;
    QString titulo;
    QString texto;
    QString causa;             // stands below the text, where a fixed text does not tell it
    QString detalle;           // for a technician; the box shows it on demand
    QString propuesta;         // FicheroGuardar: proposed path
    QString filtro;            // FicheroGuardar: "Documento PDF (*.pdf)"
    bool porDefectoSi = false; // Pregunta: what Enter gives
};

// What becomes of changes that nobody has saved.
enum class AntesDeDejar { Cancelar, Guardar, Descartar };

struct Respuesta {
    bool si = false; // Pregunta
    QString fichero; // FicheroGuardar, Carpeta; empty: cancelled
    AntesDeDejar antesDeDejar = AntesDeDejar::Cancelar;
};

using Respondedor = std::function<Respuesta(const Mensaje&)>;

// Installs who answers instead of windows and returns the former one; an empty function brings the windows back.
Respondedor InstalarRespondedor(Respondedor respondedor);

// A box with one button, Aceptar, and one that opens the detail if there is any. Returns 1, the number of the first.
int Avisar(QWidget* padre, TipoMensaje tipo, const QString& titulo, const QString& texto,
           const QString& causa = {}, const QString& detalle = {});

// The box of a failure: what it says, and its detail. The second one writes its number and " ... " before.
void AvisarFallo(QWidget* padre, const QString& titulo, const std::exception& error);
void AvisarFallo(QWidget* padre, const QString& titulo, long numero, const std::exception& error);

// What a failure keeps for a technician; "" when it has nothing.
QString DetalleDe(const std::exception& error);

// A box with Sí and No; true on Sí. No is what Escape gives, and the default button unless porDefectoSi.
bool Preguntar(QWidget* padre, const QString& titulo, const QString& texto,
               TipoMensaje tipo = TipoMensaje::Pregunta, bool porDefectoSi = false,
               const QString& detalle = {}, const QString& causa = {});

// A box with Guardar, Descartar and Cancelar, the last being what Escape gives.
AntesDeDejar PreguntarGuardar(QWidget* padre, const QString& texto);

// A failure in an exclamation box "Atención".
void AvisarError(QWidget* padre, const std::exception& error);

// A word in passing, without a box: onto a label of the window, and to screen readers.
void Decir(QLabel& rotulo, const QString& texto);

// Asks where to write a file, asking before an existing one is replaced; "" when cancelled.
QString ElegirFicheroGuardar(QWidget* padre, const QString& titulo, const QString& propuesta,
                             const QString& filtro);

// Asks for a folder that is there; "" when cancelled.
QString ElegirCarpetaQueHay(QWidget* padre, const QString& titulo);

} // namespace pastorix
