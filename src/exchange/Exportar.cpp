#include "exchange/Exportar.h"

#include "exchange/datos/ExportarPaquete.h"
#include "exchange/datos/Historial.h"
#include "frame/Ajustes.h"
#include "frame/Mensajes.h"
#include "frame/calendario/Reloj.h"
#include "store/Ficheros.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QScopeGuard>

namespace pastorix {

namespace fs = std::filesystem;

Exportar::Exportar(Sesion& sesion, QWidget* padre)
    : FormularioDeRuta(sesion, QStringLiteral("Exportar Datos"), QStringLiteral("Exportación Fallida"),
                       "Ct_E", padre)
    , m_usuarios(new QComboBox(this)) {
    setObjectName(QStringLiteral("Exportar"));
    m_usuarios->setObjectName(QStringLiteral("Cb_E"));
    Recordset rs(sesion.conexion, "Select * FROM T_Veterinarios ORDER BY Usuario", Cursor::Keyset,
                 Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        m_usuarios->addItem(Texto(rs["Usuario"].Texto()));
    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Veterinario:"), m_usuarios);
    Cuerpo()->addLayout(campos);
    connect(m_usuarios, &QComboBox::currentTextChanged, this, &Exportar::RecomputarRuta);
    TerminarConstruccion(m_usuarios);
}

bool Exportar::MarcarUsuario(const QString& usuario) {
    const int lugar = m_usuarios->findText(usuario, Qt::MatchFixedString);
    if (lugar >= 0)
        m_usuarios->setCurrentIndex(lugar);
    return lugar >= 0;
}

QString Exportar::NombreSinExtension() const {
    return m_usuarios->currentText();
}

bool Exportar::Aceptar() {
    const auto usuario = m_usuarios->currentText();
    const auto destino = Camino(Fichero());
    const auto origen = Camino(Texto(LaSesion().conexion.Fichero()));
    try {
        ExigirBaseDeLaSesion(LaSesion());
        ExigirNombreDeFichero(TextoDeRuta(destino.stem()));
        ExigirNombreDeFichero(usuario.toStdString());
        if (MismoFichero(destino, origen))
            throw ErrorDeIntercambio("El fichero de destino es la propia base de datos: " +
                                     TextoDeRuta(destino));
        if (!EsSuFichero(usuario))
            return false;
        AvisarDeLasClaves();
        std::error_code error;
        if (fs::exists(destino, error) && !fs::remove(destino, error))
            FallarFichero("No se puede borrar", destino, error);
        if (!fs::exists(origen, error)) {
            Avisar(this, TipoMensaje::Critico, QStringLiteral("Error en el Origen"),
                   Texto(TextoDeRuta(origen)) + QStringLiteral(" ...  no encontrada"));
            return false;
        }
        Hacer(destino, usuario.toStdString());
    } catch (const std::exception& e) {
        QuitarVolando();
        Fallar(e);
        if (!LaSesion().conexion.Abierta())
            MostrarPeligro(QStringLiteral("SIN BASE DE DATOS: salga del programa y vuelva a entrar"));
        return false;
    }
    QuitarVolando();
    QuitarOcupado();
    MostrarPeligro({});
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Proceso Finalizado\r\n\r\nRecuerde Importar los datos a: ") + usuario);
    try {
        EscribirHistorial(LaSesion().conexion, LaSesion().UsuarioSesion, Ahora(),
                          "Exportar Datos para: " + usuario.toStdString());
    } catch (const std::exception& e) {
        Fallar(e);
    }
    accept();
    return true;
}

void Exportar::Hacer(const fs::path& destino, const std::string& usuario) {
    PonerOcupado();
    auto& sesion = LaSesion();
    const auto origen = Camino(Texto(sesion.conexion.Fichero()));
    const FicheroTemporal copia(NombreTemporal(Temporal(QStringLiteral("xExportar.mdb"))));
    sesion.conexion.Cerrar(); // a file that somebody holds open cannot be copied
    Correr([&](const Progreso&) {
        CopiarConDiarios(origen, copia.Nombre());
        return 0;
    });
    AbrirConexion(sesion);
    MostrarVolando(QStringLiteral("Exportación de Datos"));
    const auto equipo = sesion.UsuarioSesion;
    Correr([&](const Progreso& p) { return ExportarPaquete(copia.Nombre(), destino, usuario, equipo, p); });
}

// Told once: who hands packages out should know what is in them.
void Exportar::AvisarDeLasClaves() {
    const auto ajuste = QStringLiteral("Exportar/claves");
    if (AjusteDeVentana(ajuste).toBool())
        return;
    Avisar(this, TipoMensaje::Informacion, QStringLiteral("Información"),
           QStringLiteral("Cada fichero de exportación lleva los usuarios de todos los veterinarios y la "
                          "contraseña de la central. Entréguelo solo a quien deba tenerlo."));
    GuardarAjusteDeVentana(ajuste, true);
}

} // namespace pastorix
