#include "frame/Sesion.h"

#include "frame/calendario/ErrorDeEjecucion.h"

namespace pastorix {

void DeclararOrigen(Sesion& sesion, std::string_view nombre, const QString& fichero,
                    std::string_view nombreEnError) {
    if (!sesion.origenes.Declarar(AtributosDeOrigen(nombre, fichero.toStdString(), ClaveDeBases)))
        throw ErrorDeEjecucion(60010, "Origen de datos No Creado: " +
                                          std::string(nombreEnError.empty() ? nombre : nombreEnError));
}

namespace {

void Abrir(Sesion& sesion, const std::string& cadena, bool soloLectura, const FuncionAvance& avance) {
    if (sesion.conexion.Abierta())
        sesion.conexion.Cerrar();
    OpcionesApertura opciones;
    opciones.soloLectura = soloLectura;
    opciones.carpetaBackup = sesion.rutas.BackUp().toStdString();
    opciones.avance = avance;
    opciones.alConvertir = [&](const HojaDeConversion& hoja) { sesion.convertidas.push_back(hoja); };
    sesion.conexion.Abrir(sesion.origenes, cadena, ClaveDeBases, opciones);
}

} // namespace

void AbrirConexion(Sesion& sesion, const FuncionAvance& avance) {
    Abrir(sesion, "dsn=OD_PRADALC", false, avance);
}

void AbrirConexionEn(Sesion& sesion, const QString& fichero, bool soloLectura, const FuncionAvance& avance) {
    Abrir(sesion, CadenaDeConexion("OD_PRADALC", fichero.toStdString(), ClaveDeBases), soloLectura, avance);
}

} // namespace pastorix
