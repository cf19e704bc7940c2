#include "registers/PaginaCebo.h"

#include "frame/Iconos.h"
#include "frame/Mensajes.h"
#include "frame/ficha/Aspecto.h"
#include "frame/ficha/RejillaHijos.h"
#include "registers/datos/CebosDeGanadero.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr ColumnaHijos kColumnas[] = {{"Id_Cebo", "Nº", 5},
                                      {"AñoRef", "Año Ref", 8, "Año de referencia"},
                                      {"Origen", "Origen", 14},
                                      {"Madre", "Madre", 14},
                                      {"Sexo", "Sexo", 8},
                                      {"Saneamiento", "Saneamiento", 16},
                                      {"FechaNac", "Nacimiento", 10},
                                      {"FechaCebo", "Entrada", 10},
                                      {"FechaSacrif", "Sacrificio", 10},
                                      {"FechaMuerte", "Muerte", 10},
                                      {"KgCanal", "Kg Canal", 9, "Kilos de la canal"}};

} // namespace

PaginaCebo::PaginaCebo(Conexion& c, QWidget* padre)
    : QWidget(padre)
    , m_c(c)
    , m_rejilla(new RejillaHijos(kColumnas, this))
    , m_añadir(new QPushButton(Icono("anadir"), QStringLiteral("Añadir Animal..."), this))
    , m_resumen(Explicacion({}, this)) {
    m_rejilla->setObjectName(QStringLiteral("GridCebo"));
    m_rejilla->setAccessibleName(QStringLiteral("Animales en cebo"));
    m_rejilla->alAbrir = [this](int fila) { Abrir(NumeroDe(m_rejilla->De(fila, 0))); };
    m_añadir->setObjectName(QStringLiteral("B_AñadirCebo"));
    m_añadir->setAutoDefault(false);
    connect(m_añadir, &QPushButton::clicked, this, [this] { Abrir({}); });
    m_resumen->setObjectName(QStringLiteral("ResumenCebo"));
    m_resumen->setWordWrap(true);
    auto* botones = new QVBoxLayout;
    botones->addWidget(m_añadir);
    botones->addStretch();
    auto* fila = new QHBoxLayout;
    fila->addWidget(m_rejilla, 1);
    fila->addLayout(botones);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(fila, 1);
    todo->addWidget(m_resumen);
}

void PaginaCebo::FijarGanadero(double idGanadero) {
    m_idGanadero = idGanadero;
    m_rejilla->Vaciar();
    m_añadir->setEnabled(idGanadero != 0);
    if (isVisible())
        Leer();
}

void PaginaCebo::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    Leer();
}

void PaginaCebo::Leer() {
    if (m_idGanadero == 0)
        return m_resumen->clear();
    try {
        Recordset rs(m_c, SentenciaCebos(m_idGanadero), Cursor::Estatico, Bloqueo::SoloLectura);
        m_rejilla->LlenarDeNuevo(rs, 0);
    } catch (const std::exception& e) {
        AvisarError(this, e);
    }
    int dentro = 0;
    for (int f = 0; f < m_rejilla->Filas(); ++f)
        dentro += EsNulo(m_rejilla->De(f, 8)) && EsNulo(m_rejilla->De(f, 9)) ? 1 : 0;
    m_resumen->setText(
        m_rejilla->Filas() == 0
            ? QStringLiteral("Sin animales en cebo. «Añadir Animal...» anota uno comprado; un ternero de la "
                             "explotación entra al poner «Cebo» en el destino de su ficha.")
            : QStringLiteral("%1 animales, %2 sin fecha de sacrificio ni de muerte")
                  .arg(m_rejilla->Filas())
                  .arg(dentro));
}

void PaginaCebo::Abrir(std::optional<double> idCebo) {
    if (!alAbrir || m_idGanadero == 0)
        return;
    alAbrir(idCebo);
    Leer();
    m_rejilla->setFocus();
}

} // namespace pastorix
