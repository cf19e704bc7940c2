#include "registers/sanidad/PaginaMamitis.h"

#include "frame/ficha/Aspecto.h"
#include "frame/ficha/CampoTexto.h"
#include "frame/ficha/LineasEditables.h"
#include "registers/datos/AsuntosSanidad.h"
#include "registers/datos/FechasVacu.h"
#include "registers/sanidad/Ubre.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace pastorix {

namespace {

constexpr int kFecha = 22; // CT_Estandar(22 + teat) is its date...
constexpr int kNota = 26;  // ... and this its note
constexpr int kAnchuraNota = 255;

constexpr AspectoColumna kColumnasDeLactacion[] = {
    {"Año Ref.", 5, nullptr, false, 0, "Año de referencia"},
    {"F.Parto", 8, nullptr, false, 0, "Fecha del parto"},
    {"Nº Parto", 5},
    {"F.Destete", 18, nullptr, false, 0, "Fecha de destete"},
    {"Trat. Secado", 14, "Ct_CP(0)", false, 100, "Tratamiento de secado"},
    {"C. Perdidos antesD", 8, "Ct_CP(1)", false, 4, "Cuartos perdidos antes del destete"}};
const DefinicionLineas kLactaciones{"GridMamitis", "Lactaciones", ColumnasDeLactacion(), kColumnasDeLactacion,
                                    false};

constexpr AspectoColumna kColumnasDeVacunas[] = {{"AñoNat", 5, "Ct_CP(3)", false, 0, "Año natural"},
                                                 {"Vacunación", 8, "CB_VMamitis", true},
                                                 {"F.Vacuna", 8, "Ct_CP(4)", false, 0, "Fecha de la vacuna"}};

const auto kVacunas = PorAñosNaturales("Grid_MVacu", "Vacunación contra la mamitis por año natural",
                                       kVacunasMamitis, kColumnasDeVacunas);

} // namespace

PaginaMamitis::PaginaMamitis(Conexion& base, QWidget* padre)
    : PaginaSanidad(base, padre) {
    auto* todo = new QHBoxLayout(this);
    todo->setSpacing(24);
    todo->addWidget(CrearCuartos(), 2);
    todo->addWidget(CrearListas(), 3);
}

QWidget* PaginaMamitis::CrearCuartos() {
    auto* caja = new QWidget(this);
    m_cuartos = new QGridLayout(caja);
    m_cuartos->setContentsMargins(0, 0, 0, 0);
    m_cuartos->setHorizontalSpacing(20);
    m_cuartos->addWidget(CrearTeto(0, caja), 0, 0);
    m_cuartos->addWidget(CrearTeto(1, caja), 0, 1);
    m_ubre = new Ubre(caja);
    m_ubre->puedeTocar = [this] { return Puede(); };
    m_ubre->alTocar = [this] { Tocar(); };
    m_cuartos->addWidget(m_ubre, 1, 0, 1, 2);
    m_cuartos->addWidget(CrearTeto(2, caja), 2, 0);
    m_cuartos->addWidget(CrearTeto(3, caja), 2, 1);
    m_cuartos->setRowStretch(1, 1);
    return caja;
}

QWidget* PaginaMamitis::CrearTeto(std::size_t i, QWidget* padre) {
    const int indice = static_cast<int>(i) + 1;
    auto* caja = new QWidget(padre);
    auto* rejilla = new QGridLayout(caja);
    rejilla->setContentsMargins(0, 0, 0, 0);
    auto& campos = m_campos[i];
    campos.rotulo = Titular({}, caja);
    campos.rotulo->setObjectName(QStringLiteral("Et_Teto(%1)").arg(indice));
    rejilla->addWidget(campos.rotulo, 0, 0, 1, 2);
    const auto poner = [&](const char* texto, ClaseCampo clase, int anchura, int fila, int control) {
        auto* campo = new CampoTexto(clase, anchura, caja);
        campo->setObjectName(QStringLiteral("CT_Estandar(%1)").arg(control + indice));
        auto* rotulo = new QLabel(QString::fromUtf8(texto), caja);
        rotulo->setBuddy(campo);
        rejilla->addWidget(rotulo, fila, 0, Qt::AlignRight | Qt::AlignVCenter);
        rejilla->addWidget(campo, fila, 1);
        connect(campo, &QLineEdit::textEdited, this, [this, i] {
            if (Puede())
                Tocar();
            else
                MostrarTeto(i);
        });
        return campo;
    };
    campos.fecha = poner("Fecha", ClaseCampo::Fecha, 10, 1, kFecha);
    campos.nota = poner("Nota", ClaseCampo::Texto, kAnchuraNota, 2, kNota);
    return caja;
}

QWidget* PaginaMamitis::CrearListas() {
    auto* caja = new QWidget(this);
    auto* todo = new QVBoxLayout(caja);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->addWidget(Titular(QStringLiteral("Lactaciones"), caja));
    m_lactaciones = new LineasEditables(kLactaciones, caja);
    m_lactaciones->alCambiar = [this] { Tocar(); };
    m_lactaciones->alTeclear = [this] { Tocar(); };
    todo->addWidget(m_lactaciones, 5);
    todo->addSpacing(8);
    todo->addWidget(Titular(QStringLiteral("Vacunación por año natural"), caja));
    m_vacunas = new LineasEditables(kVacunas, caja);
    m_vacunas->alCambiar = [this] { GuardarVacunas(); };
    todo->addWidget(m_vacunas, 4);
    return caja;
}

void PaginaMamitis::PonerCuartosPerdidos(QWidget* campo) {
    m_cuartos->addWidget(campo, 3, 0, 1, 2, Qt::AlignLeft);
    for (auto* linea : campo->findChildren<QLineEdit*>())
        setTabOrder(m_campos.back().nota, linea);
}

void PaginaMamitis::Mostrar(VacaEnHoja vaca) {
    auto tetos = LeerTetos(Base(), vaca.idVaca);
    auto lactaciones = LeerLactaciones(Base(), vaca.idVaca);
    auto vacunas =
        vaca.idVaca == 0 ? std::vector<Linea>() : LeerNaturales(Base(), kVacunasMamitis, vaca.idVaca);
    FijarVaca(vaca);
    m_tetos = std::move(tetos);
    for (std::size_t i = 0; i < kTetos; ++i)
        MostrarTeto(i);
    m_lactaciones->Permitir(!lactaciones.empty());
    m_lactaciones->Mostrar(std::move(lactaciones));
    m_vacunas->FijarLista(1, ComoItems(LeerFechasVacu(Base(), "Mamitis", "Mamitis", vaca.idGanadero)[0]));
    m_vacunas->Permitir(vaca.idVaca != 0 && vaca.idGanadero != 0);
    m_vacunas->Mostrar(std::move(vacunas));
    m_tocada = false;
    m_vacunasPorGuardar = false;
}

void PaginaMamitis::MostrarTeto(std::size_t i) {
    const auto& teto = m_tetos[i];
    const auto nombre = QString::fromStdString(teto.nombre);
    const auto& campos = m_campos[i];
    campos.rotulo->setText(nombre);
    campos.fecha->Mostrar(QString::fromStdString(TextoDe(teto.fecha)));
    campos.fecha->setAccessibleName(QStringLiteral("Fecha, ") + nombre);
    campos.nota->Mostrar(QString::fromStdString(TextoDe(teto.nota)));
    campos.nota->setAccessibleName(QStringLiteral("Nota, ") + nombre);
    m_ubre->Poner(i, nombre, teto.marcado);
}

bool PaginaMamitis::Pendiente() const {
    return m_tocada || m_vacunasPorGuardar || m_lactaciones->EnCurso() || m_vacunas->EnCurso();
}

void PaginaMamitis::Tocar() {
    if (m_guardando)
        return;
    m_tocada = true;
    if (alTocar)
        alTocar();
}

// What stands on the page; a field that nobody touched gives back what was read, a date that is none gives Null.
Tetos PaginaMamitis::Recogidos() const {
    const auto valor = [](const CampoTexto& campo, const Valor& leido) {
        return ValorDe(campo.text().toStdString(), leido, campo.Clase(), SiNoVale::Vacia);
    };
    auto tetos = m_tetos;
    for (std::size_t i = 0; i < kTetos; ++i) {
        tetos[i].marcado = m_ubre->Marcado(i);
        tetos[i].fecha = valor(*m_campos[i].fecha, m_tetos[i].fecha);
        tetos[i].nota = valor(*m_campos[i].nota, m_tetos[i].nota);
    }
    return tetos;
}

bool PaginaMamitis::Recoger() {
    m_guardando = true; // the sheet knows already
    for (auto* lineas : {m_lactaciones, m_vacunas})
        if (lineas->EnCurso())
            lineas->Confirmar();
    if (m_vacunasPorGuardar)
        GuardarVacunas();
    m_guardando = false;
    return !m_vacunasPorGuardar && !m_lactaciones->EnCurso() && !m_vacunas->EnCurso();
}

void PaginaMamitis::EscribirHijos(double idVaca) {
    EscribirTetos(Base(), idVaca, Recogidos());
    EscribirLactaciones(Base(), idVaca, m_lactaciones->Lineas());
}

void PaginaMamitis::GuardarVacunas() {
    m_vacunasPorGuardar =
        !Intentar([this] { EscribirNaturales(Base(), kVacunasMamitis, Vaca(), m_vacunas->Lineas()); });
}

} // namespace pastorix
