#include "frame/Ayuda.h"

#include "frame/Atajos.h"
#include "frame/Manual.h"
#include "frame/Rutas.h"
#include "frame/Ventanas.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace pastorix {

namespace {

// clang-format off
constexpr TemaDeAyuda kTemas[] = {
    {"PrimerInicio", "", "El primer arranque"},
    {"LoConvertido", "", "La hoja de lo leído"},
    {"AbrirSesion", "", "La entrada"},
    {"PanelAvisos", "", "Los avisos"},
    {"Principal", "", "La ventana principal"},
    {"Hoy", "", "Deshacer"},
    {"Atajos", "", "Con el teclado"},
    {"ControlEquipos", "", "Quién manda qué a quién"},
    {"Selector", "", "Encontrar un registro"},
    {"Veterinarios", "", "Los veterinarios"},
    {"Ganaderos", "General", "Los datos generales"},
    {"Ganaderos", "Cebo", "La ficha de cebo"},
    {"Ganaderos", "Inicio Periodo Reproductivo", "Inicio Periodo Reproductivo"},
    {"Ganaderos", "Manejo", "Manejo"},
    {"Ganaderos", "", "Los ganaderos"},
    {"DarBaja", "", "Dar de baja a un ganadero"},
    {"Vacas", "Partos", "Los ciclos de la vaca"},
    {"Vacas", "Cubriciones", "Los ciclos de la vaca"},
    {"Vacas", "Mamitis", "Mamitis"},
    {"Vacas", "C.C.", "C.C."},
    {"Vacas", "Desecho", "Dos listas para cada cosa"},
    {"Vacas", "Patología", "Dos listas para cada cosa"},
    {"Vacas", "IBR/BVD", "IBR/BVD y Neospora"},
    {"Vacas", "Neospora", "IBR/BVD y Neospora"},
    {"Vacas", "", "Las vacas"},
    {"ObsControlRebaño", "", "Observaciones para el control del rebaño"},
    {"Cubriciones", "", "La ficha de la cubrición"},
    {"Partos", "", "La ficha del parto"},
    {"AñadirCubricion", "", "Los ciclos de la vaca"},
    {"AñadirParto", "", "Los ciclos de la vaca"},
    {"Cebo", "", "La ficha de cebo"},
    {"FichaIPR", "", "La ficha del inicio del periodo reproductivo"},
    {"Sementales", "Patologías", "Las patologías"},
    {"Sementales", "Baja", "La baja y la eliminación"},
    {"Sementales", "", "Los toros"},
    {"Lst_IndicesTecnicos", "", "Pedir el informe"},
    {"Lst_ResumenIT", "", "Indices Técnicos (Resumen)"},
    {"LstParamTec", "", "Inventario"},
    {"LstControlRebaño", "", "Controles de Rebaño"},
    {"LstEAR_DP", "", "Comportamiento Productivo del Rebaño"},
    {"LstEAR_DR", "", "Comportamiento Reproductivo del Rebaño"},
    {"LstHtsEAR_DR", "", "Los históricos por vaca"},
    {"LstHtsPxV", "", "Los históricos por vaca"},
    {"InfCebo", "", "Cebo"},
    {"InfDemora", "", "Causas Demora Preñez"},
    {"InfManejo", "", "Manejo"},
    {"InfEnfermedades", "", "Enfermedades Reproductivas"},
    {"Lst_Vacas", "", "Vacas y Sementales"},
    {"Lst_Toros", "", "Vacas y Sementales"},
    {"VentanaInforme", "", "La ventana del informe"},
    {"Exportar", "", "Preparar el fichero de un veterinario"},
    {"ImportarDC", "", "Recogerlo en la oficina"},
    {"ExportarDS", "", "Recibirlo en el puesto, y mandarlo de vuelta"},
    {"ImportarDS", "", "Recibirlo en el puesto, y mandarlo de vuelta"},
    {"VerCambios", "", "Recogerlo en la oficina"},
    {"VeterinarioImp", "", "Se une un veterinario nuevo"},
    {"VeterinarioImp1", "", "Se une un veterinario nuevo"},
    {"Exp_TC", "", "Los toros de inseminación"},
    {"Imp_TC", "", "Los toros de inseminación"},
    {"PasoGanaderos", "", "La oficina y sus puestos"},
    {"Historial", "", "El historial y las copias"},
    {"Copias", "", "Recuperar una copia"},
};
// clang-format on

class TeclaDeAyuda : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType())
            return false;
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        if (tecla->key() != Qt::Key_F1 || tecla->modifiers() != Qt::NoModifier)
            return false;
        MostrarAyuda(static_cast<QWidget*>(objeto));
        return true;
    }
};

} // namespace

std::span<const TemaDeAyuda> TemasDeAyuda() {
    return kTemas;
}

QString TituloDeAyuda(const QWidget* control) {
    for (const auto* w = control; w; w = w->parentWidget()) {
        const auto nombre = w->objectName();
        const auto* pestañas = nombre.isEmpty() ? nullptr : w->findChild<QTabWidget*>();
        const auto pestaña = pestañas ? pestañas->tabText(pestañas->currentIndex()).trimmed() : QString();
        for (const auto& tema : kTemas)
            if (nombre == QString::fromUtf8(tema.ventana) &&
                (!*tema.pestaña || pestaña == QString::fromUtf8(tema.pestaña)))
                return QString::fromUtf8(tema.titulo);
    }
    return {};
}

VentanaAyuda::VentanaAyuda(const QString& pagina, const QString& titulo, QWidget* padre)
    : QDialog(padre)
    , m_buscar(new QLineEdit(this))
    , m_capitulos(new QTreeWidget(this))
    , m_texto(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("Ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Pastorix"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_buscar->setObjectName(QStringLiteral("Buscar"));
    m_buscar->setPlaceholderText(QStringLiteral("Buscar en el manual; Intro, la vez siguiente"));
    m_buscar->setAccessibleName(QStringLiteral("Buscar en el manual"));
    m_buscar->setClearButtonEnabled(true);
    connect(m_buscar, &QLineEdit::returnPressed, this, &VentanaAyuda::Buscar);
    m_capitulos->setObjectName(QStringLiteral("Capitulos"));
    m_capitulos->setAccessibleName(QStringLiteral("Capítulos"));
    m_capitulos->setHeaderHidden(true);
    m_texto->setObjectName(QStringLiteral("Texto"));
    m_texto->setAccessibleName(QStringLiteral("Texto del manual"));
    m_texto->setSearchPaths({QFileInfo(pagina).path()});
    QFile fichero(pagina);
    const QString html = fichero.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichero.readAll()) : QString();
    m_texto->setHtml(html);
    LlenarCapitulos(html);
    connect(m_capitulos, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* fila) {
        if (fila)
            m_texto->scrollToAnchor(fila->data(0, Qt::UserRole).toString());
    });

    auto* atajos = new QPushButton(QStringLiteral("A&tajos de teclado"), this);
    atajos->setAutoDefault(false);
    connect(atajos, &QPushButton::clicked, this, [padre] {
        if (padre)
            ListaDeAtajos(*padre->window()).exec();
    });
    atajos->setVisible(padre != nullptr);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(m_buscar, 1);
    arriba->addWidget(atajos);
    auto* partes = new QSplitter(this);
    partes->addWidget(m_capitulos);
    partes->addWidget(m_texto);
    partes->setStretchFactor(1, 1);
    partes->setSizes({240, 720});
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(arriba);
    todo->addWidget(partes, 1);
    resize(960, 560);
    RecordarVentana(*this);
    IrA(titulo);
    m_texto->setFocus();
}

void VentanaAyuda::LlenarCapitulos(const QString& html) {
    static const QRegularExpression titulo(
        QStringLiteral("<h([1-3])><a name=\"(t\\d+)\"></a>(.*?)</h[1-3]>"));
    std::array<QTreeWidgetItem*, 4> ultimo{};
    for (auto m = titulo.globalMatch(html); m.hasNext();) {
        const auto hallado = m.next();
        const auto nivel = static_cast<std::size_t>(hallado.captured(1).toInt());
        auto* fila =
            ultimo[nivel - 1] ? new QTreeWidgetItem(ultimo[nivel - 1]) : new QTreeWidgetItem(m_capitulos);
        fila->setText(0, hallado.captured(3));
        fila->setData(0, Qt::UserRole, hallado.captured(2));
        ultimo[nivel] = fila;
        if (nivel < 3)
            ultimo[nivel + 1] = nullptr;
    }
}

// Of headings with one text the one of the higher level is meant.
void VentanaAyuda::IrA(const QString& titulo) {
    const auto filas = m_capitulos->findItems(titulo, Qt::MatchExactly | Qt::MatchRecursive);
    const auto nivel = [](const QTreeWidgetItem* fila) {
        int n = 0;
        for (const auto* p = fila->parent(); p; p = p->parent())
            ++n;
        return n;
    };
    QTreeWidgetItem* mejor = nullptr;
    for (auto* fila : filas)
        if (!mejor || nivel(fila) < nivel(mejor))
            mejor = fila;
    m_capitulos->setCurrentItem(mejor ? mejor : m_capitulos->topLevelItem(0));
}

QString VentanaAyuda::Titulo() const {
    return m_capitulos->currentItem() ? m_capitulos->currentItem()->text(0) : QString();
}

void VentanaAyuda::Buscar() {
    if (m_texto->find(m_buscar->text()))
        return;
    m_texto->moveCursor(QTextCursor::Start); // from the beginning again
    m_texto->find(m_buscar->text());
}

void MostrarAyuda(QWidget* desde) {
    const auto pagina = CarpetaCompartida() + QStringLiteral("/ayuda/manual.html");
    if (!QFileInfo(pagina).isFile())
        return AbrirManual(desde, BuscarSinCaja(CarpetaCompartida(), QStringLiteral("manual.pdf")));
    auto* ventana = desde ? desde->window() : nullptr;
    if (auto* abierta = dynamic_cast<VentanaAyuda*>(ventana))
        return abierta->IrA(QStringLiteral("La ventana principal"));
    (new VentanaAyuda(pagina, TituloDeAyuda(desde), ventana))->show();
}

void InstalarTeclaDeAyuda(QApplication& aplicacion) {
    aplicacion.installEventFilter(new TeclaDeAyuda(&aplicacion));
}

} // namespace pastorix
