#include "pastorixctl/Ordenes.h"

#include "frame/Entrega.h"
#include "frame/Rutas.h"
#include "reports/motor/DisposicionesIncluidas.h"
#include "reports/motor/Escritura.h"
#include "store/Conversion.h"
#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Literales.h"
#include "store/Recordset.h"
#include "store/Verificacion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <iostream>

namespace pastorix::ctl {

namespace {

void Cuantos(const QStringList& argumentos, qsizetype n) {
    if (argumentos.size() != n)
        throw ErrorDeUso("Número de argumentos incorrecto");
    for (const auto& a : argumentos)
        if (a.startsWith(QLatin1String("--")))
            throw ErrorDeUso("Opción desconocida: " + a.toStdString());
}

QDir CarpetaNueva(const QString& nombre) {
    if (!QDir().mkpath(nombre))
        throw ErrorDeOrden("No se puede crear la carpeta: " + nombre.toStdString());
    QDir carpeta(nombre);
    for (const auto& base : BasesEntregadas())
        if (carpeta.exists(base) || carpeta.exists(QStringLiteral("Base de Datos/") + base))
            throw ErrorDeOrden("En la carpeta ya hay una instalación: " + nombre.toStdString());
    return carpeta;
}

void CopiarManual(const QDir& destino) {
    const QDir entrega(CarpetaDeEntrega());
    const auto manual = QStringLiteral("manual.pdf");
    if (entrega.exists(manual))
        CopiarFichero(Ruta(entrega.filePath(manual).toStdString()),
                      Ruta(destino.filePath(manual).toStdString()));
}

} // namespace

QString CarpetaDeEntrega() {
    const auto impuesta = qEnvironmentVariable("PASTORIX_COMPARTIDA");
    return impuesta.isEmpty() ? CarpetaCompartida() : impuesta;
}

int Crear(const QStringList& argumentos) {
    Cuantos(argumentos, 1);
    const auto carpeta = CarpetaNueva(argumentos[0]);
    CopiarManual(carpeta);
    EntregarVacias(carpeta.absolutePath());
    std::cout << "Instalación nueva en " << carpeta.absolutePath().toStdString() << "\n";
    return 0;
}

int ClaveCentral(const QStringList& argumentos) {
    Cuantos(argumentos, 2);
    const auto usuario = argumentos[1].toStdString();
    if (usuario.empty() || usuario.find('\'') != std::string::npos)
        throw ErrorDeOrden("El usuario no puede estar vacío ni llevar apóstrofo");
    std::string clave;
    std::getline(std::cin, clave);
    if (clave.empty() || clave.find('\'') != std::string::npos)
        throw ErrorDeOrden("La contraseña no puede estar vacía ni llevar apóstrofo");
    Conexion c;
    c.AbrirFichero(argumentos[0].toStdString(), kClave);
    EnGrupo(c, [&] {
        Recordset rs(c, "Select * FROM Claves WHERE NIVEL = 'CENTRAL' AND Usuario = " + TextoSql(usuario));
        if (rs.Eof()) {
            rs.AddNew();
            rs["Usuario"] = usuario;
            rs["NIVEL"] = "CENTRAL";
        }
        rs["Clave"] = clave;
        rs.Update();
    });
    return 0;
}

int Ejemplo(const QStringList& argumentos) {
    Cuantos(argumentos, 1);
    const auto origen = CarpetaDeEntrega() + QStringLiteral("/ejemplo");
    if (const auto faltan = BasesQueFaltan(origen); !faltan.isEmpty())
        throw ErrorDeOrden("No se encuentra el fichero del ejemplo: " +
                           QDir(origen).filePath(faltan.first()).toStdString());
    const auto carpeta = CarpetaNueva(argumentos[0]);
    CopiarManual(carpeta);
    EntregarCopias(origen, carpeta.absolutePath());
    std::cout << "Instalación de ejemplo en " << carpeta.absolutePath().toStdString() << "\n";
    return 0;
}

int Convertir(const QStringList& argumentos) {
    Cuantos(argumentos, 2);
    const auto hoja =
        ConvertirAccess(Ruta(argumentos[0].toStdString()), Ruta(argumentos[1].toStdString()), kClave);
    std::cout << hoja.Texto();
    return 0;
}

int Disenos(const QStringList& argumentos) {
    Cuantos(argumentos, 1);
    if (!QDir().mkpath(argumentos[0]))
        throw ErrorDeOrden("No se puede crear la carpeta: " + argumentos[0].toStdString());
    const QDir carpeta(argumentos[0]);
    std::vector<FicheroEntero> ficheros;
    for (const auto& nombre : DisposicionesIncluidas()) {
        if (QFile::exists(BuscarSinCaja(carpeta.path(), nombre)))
            throw ErrorDeOrden("Ya existe: " + carpeta.filePath(nombre).toStdString());
        ficheros.push_back({carpeta.filePath(nombre), DisposicionIncluida(nombre).value()});
    }
    EscribirFicheros(ficheros);
    return 0;
}

int Verificar(const QStringList& argumentos) {
    if (argumentos.isEmpty())
        throw ErrorDeUso("Falta el fichero");
    int estado = 0;
    for (const auto& fichero : argumentos) {
        const auto faltas = VerificarBase(fichero.toStdString(), kClave);
        if (faltas.empty())
            std::cout << fichero.toStdString() << ": correcta"
                      << (QFileInfo(fichero).isWritable()
                              ? ""
                              : ", pero de solo lectura: así no se puede trabajar con ella")
                      << "\n";
        for (const auto& f : faltas) {
            std::cerr << fichero.toStdString() << ": " << f << "\n";
            estado = 1;
        }
    }
    return estado;
}

} // namespace pastorix::ctl
