#include "frame/AvisosDeBase.h"

#include "frame/Mensajes.h"
#include "frame/SegundoPlano.h"
#include "frame/Sesion.h"
#include "frame/calendario/Reloj.h"
#include "store/Copias.h"
#include "store/Ficheros.h"
#include "store/Integridad.h"

#include <QDir>
#include <QFileInfo>

namespace pastorix {

namespace {

std::filesystem::path Camino(const QString& ruta) {
    return Ruta(ruta.toStdString());
}

QString Nombre(const std::filesystem::path& ruta) {
    return QString::fromStdString(TextoDeRuta(ruta.filename()));
}

std::optional<CopiaSana> BuscarCopia(const Sesion& sesion, const QString& fichero,
                                     const HacerAvance& avance) {
    const auto carpeta = Camino(sesion.rutas.BackUp());
    const auto base = QFileInfo(fichero).fileName().toStdString();
    return EnSegundoPlano([&](const auto&) { return UltimaCopiaSana(carpeta, base, ClaveDeBases); },
                          avance(QStringLiteral("Buscando una copia de seguridad...")));
}

bool QuiereRestaurar(const CopiaSana& sana, const QString& problema, const QString& siNo,
                     const QString& detalle, QWidget* padre) {
    const auto momento = QString::fromStdString(FormatoFecha(sana.copia.momento, "dd/mm/yyyy hh:nn"));
    return Preguntar(padre, QStringLiteral("Atención"),
                     problema +
                         QStringLiteral("\n\nLa última copia de seguridad sana es del %1 (%2):\n%3\n\nLo "
                                        "anotado después de esa fecha no está en ella. ¿Desea restaurarla?%4")
                             .arg(momento, Nombre(sana.copia.fichero), EnPalabras(sana.contenido), siNo),
                     TipoMensaje::Critico, false, detalle);
}

// With the connection closed. False when it failed, which is told.
bool Restaurar(Sesion& sesion, const QString& fichero, const CopiaSana& sana, QWidget* padre,
               const HacerAvance& avance) {
    try {
        const auto carpeta = Camino(sesion.rutas.BackUp());
        const auto momento = Ahora();
        const auto averiada = EnSegundoPlano(
            [&](const auto&) {
                return RestaurarCopia(Camino(fichero), sana.copia.fichero, carpeta, momento, ClaveDeBases);
            },
            avance(QStringLiteral("Restaurando la copia de seguridad...")));
        Avisar(padre, TipoMensaje::Informacion, QStringLiteral("Información"),
               QStringLiteral(
                   "La copia de seguridad está restaurada. La base de datos dañada queda en la carpeta "
                   "%1, con el nombre %2")
                   .arg(QDir::toNativeSeparators(sesion.rutas.BackUp()), Nombre(averiada)));
        return true;
    } catch (const ErrorAlmacen& error) {
        Avisar(padre, TipoMensaje::Atencion, QStringLiteral("Atención"),
               QStringLiteral("No se ha podido restaurar la copia de seguridad"),
               QString::fromUtf8(error.what()), DetalleDe(error));
        return false;
    }
}

} // namespace

QString EnPalabras(const ContenidoDeBase& c) {
    const auto cuantos = [](long n, const char* uno, const char* varios) {
        return QString::number(n) + QLatin1Char(' ') + QString::fromUtf8(n == 1 ? uno : varios);
    };
    QString texto = cuantos(c.ganaderos, "ganadero", "ganaderos") + QStringLiteral(", ") +
                    cuantos(c.vacas, "vaca", "vacas") + QStringLiteral(", ") +
                    cuantos(c.sementales, "toro", "toros");
    if (c.ultimoParto)
        texto += QStringLiteral("; último parto, ") +
                 QString::fromStdString(FormatoFecha(*c.ultimoParto, "dd/mm/yyyy"));
    return texto;
}

void AvisarColumnasAñadidas(const Sesion& sesion, QWidget* padre) {
    QStringList columnas;
    for (const auto& c : sesion.conexion.ColumnasAñadidas())
        columnas << QString::fromStdString(c);
    if (!columnas.isEmpty())
        Avisar(
            padre, TipoMensaje::Atencion, QStringLiteral("Atención"),
            QStringLiteral("A la base de datos le faltaban columnas, que se han añadido vacías: %1.\nComo "
                           "estaba queda en la carpeta %2")
                .arg(columnas.join(QStringLiteral(", ")), QDir::toNativeSeparators(sesion.rutas.BackUp())));
}

bool OfrecerCopia(Sesion& sesion, const QString& fichero, QWidget* padre, const HacerAvance& avance) {
    const auto resultado = sesion.conexion.ResultadoUltimo();
    if (resultado != ResultadoApertura::Dañada && resultado != ResultadoApertura::NoEsBase)
        return false;
    const auto sana = BuscarCopia(sesion, fichero, avance);
    return sana &&
           QuiereRestaurar(*sana,
                           QStringLiteral("La base de datos no se puede abrir: ") +
                               QDir::toNativeSeparators(fichero),
                           {}, {}, padre) &&
           Restaurar(sesion, fichero, *sana, padre, avance);
}

void VigilarBase(Sesion& sesion, QWidget* padre, const HacerAvance& avance) {
    const auto fichero = QString::fromStdString(sesion.conexion.Fichero());
    const auto camino = Camino(fichero);
    const auto daños = EnSegundoPlano([&](const auto& relevo) { return BuscarDaños(camino, relevo); },
                                      avance(QStringLiteral("Comprobando la base de datos...")));
    if (!daños.Hay())
        return;
    const auto problema =
        QString::fromStdString(daños.Texto()) + QLatin1Char('\n') + QDir::toNativeSeparators(fichero);
    const auto detalle = QString::fromStdString(daños.detalle);
    const auto consulta = QStringLiteral("se abrirá solo para consultar, imprimir y exportar lo que se lea.");
    const auto sana = BuscarCopia(sesion, fichero, avance);
    if (!sana)
        Avisar(padre, TipoMensaje::Critico, QStringLiteral("Atención"),
               problema + QStringLiteral("\n\nNo hay ninguna copia de seguridad sana. La base de datos ") +
                   consulta,
               {}, detalle);
    else if (QuiereRestaurar(*sana, problema, QStringLiteral(" Si no, la base de datos ") + consulta, detalle,
                             padre)) {
        sesion.conexion.Cerrar();
        if (Restaurar(sesion, fichero, *sana, padre, avance))
            return AbrirConexion(sesion);
    }
    AbrirConexionEn(sesion, fichero, true);
}

} // namespace pastorix
