#pragma once

#include "store/Errores.h"

#include <QStringList>

#include <stdexcept>

// The commands of the companion command line. Each takes its own arguments and returns the exit status: 0 done, 1 not done (the
// reason is on stderr), 2 the call itself is wrong.
namespace pastorix::ctl {

// The call is wrong: usage goes to stderr, status 2.
class ErrorDeUso : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Asked for by --detalle, which every command takes: the words for a technician follow the reason on stderr.
inline bool conDetalle = false;

// Could not be done: text to stderr, status 1.
class ErrorDeOrden : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

int Crear(const QStringList& argumentos);
int ClaveCentral(const QStringList& argumentos);
int Ejemplo(const QStringList& argumentos);
int Disenos(const QStringList& argumentos);
int Convertir(const QStringList& argumentos);
int Verificar(const QStringList& argumentos);
int Informe(const QStringList& argumentos);
int OrdenExportar(const QStringList& argumentos);
int OrdenImportar(const QStringList& argumentos);
int OrdenEnviar(const QStringList& argumentos);
int OrdenRecibir(const QStringList& argumentos);
int OrdenExportarToros(const QStringList& argumentos);
int OrdenImportarToros(const QStringList& argumentos);
int OrdenPasar(const QStringList& argumentos);
int OrdenHistorial(const QStringList& argumentos);
int OrdenCompactar(const QStringList& argumentos);
int OrdenRestaurar(const QStringList& argumentos);

// Folder of what is delivered beside the program: the manual, and in "ejemplo" the example's Access files. The variable
// PASTORIX_COMPARTIDA overrides it.
QString CarpetaDeEntrega();

} // namespace pastorix::ctl
