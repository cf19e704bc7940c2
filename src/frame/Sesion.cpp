#include "frame/Sesion.h"

#include "frame/calendario/ErrorDeEjecucion.h"

namespace pastorix {

void DeclararOrigen(Sesion& sesion, std::string_view nombre, const QString& fichero,
                    std::string_view nombreEnError) {
    if (!sesion.origenes.Declarar(AtributosDeOrigen(nombre, fichero.toStdString(), ClaveDeBases)))
        throw ErrorDeEjecucion(60010, "Origen de datos No Creado: " +
                                          std::string(nombreEnError.empty() ? nombre : nombreEnError));
}

void AbrirConexion(Sesion& sesion, const FuncionAvance& avance) {
    if (sesion.conexion.Abierta())
        sesion.conexion.Cerrar();
    OpcionesApertura opciones;
    opciones.carpetaBackup = sesion.rutas.BackUp().toStdString();
    opciones.avance = avance;
    sesion.conexion.Abrir(sesion.origenes, "dsn=OD_PRADALC", ClaveDeBases, opciones);
}

} // namespace pastorix
