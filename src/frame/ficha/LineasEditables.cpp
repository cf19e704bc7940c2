#include "frame/ficha/LineasEditables.h"

#include "frame/Mensajes.h"
#include "frame/calendario/Calendario.h"
#include "frame/ficha/CampoTexto.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QToolButton>

#include <algorithm>

namespace pastorix {

namespace {

// A typed date as the grids show it, dd/mm/yy; one of another century keeps its four figures, and what is no date stays as it is.
std::string FechaCorta(const std::string& texto) {
    const auto fecha = EsFechaValida(texto) ? FechaDeTexto(texto) : std::nullopt;
    if (!fecha)
        return texto;
    const auto corta = FormatoFecha(*fecha, "dd/mm/yy");
    return FechaDeTexto(corta) == fecha ? corta : FormatoFecha(*fecha, "dd/mm/yyyy");
}

} // namespace

void LineasEditables::Mostrar(std::vector<Linea> lineas) {
    m_lineas = std::move(lineas);
    m_fila = -1;
    Pintar();
    LimpiarEntradas();
}

void LineasEditables::MostrarDeNuevo(std::vector<Linea> lineas) {
    if (!EnCurso())
        return Mostrar(std::move(lineas));
    QStringList escrito;
    for (const auto& e : m_entradas)
        escrito << e.Leer();
    const auto ofrecido = m_ofrecido;
    const int fila = m_fila;
    Mostrar(std::move(lineas));
    for (std::size_t i = 0; i < m_entradas.size(); ++i)
        m_entradas[i].Poner(escrito.at(static_cast<qsizetype>(i)));
    m_ofrecido = ofrecido;
    m_fila = fila < static_cast<int>(m_lineas.size()) ? fila : -1;
    Rotular();
}

void LineasEditables::FijarLista(std::size_t columna, const QStringList& valores) {
    for (auto& e : m_entradas)
        if (e.Columna() == columna && e.Combo()) {
            const auto antes = e.Leer();
            e.Listar(valores);
            e.Poner(antes);
        }
}

const EntradaDeLinea* LineasEditables::Entrada(std::size_t columna) const {
    const auto it = std::find_if(m_entradas.begin(), m_entradas.end(),
                                 [&](const auto& e) { return e.Columna() == columna; });
    return it == m_entradas.end() ? nullptr : &*it;
}

QString LineasEditables::EnCampo(std::size_t columna) const {
    const auto* entrada = Entrada(columna);
    return entrada ? entrada->Leer() : QString();
}

void LineasEditables::PonerEnCampo(std::size_t columna, const QString& texto) {
    for (auto& e : m_entradas)
        if (e.Columna() == columna)
            e.Poner(texto);
}

QWidget* LineasEditables::Control(std::size_t columna) const {
    const auto* entrada = Entrada(columna);
    return entrada ? entrada->Control() : nullptr;
}

void LineasEditables::Permitir(bool si) {
    m_permitido = si;
    Habilitar();
}

// Where no lines are added the fields wait for one to be chosen.
void LineasEditables::Habilitar() {
    const bool campos = m_permitido && (m_definicion.conAltas || m_fila >= 0);
    for (const auto& e : m_entradas)
        e.Control()->setEnabled(campos);
    m_poner->setEnabled(campos);
    m_nueva->setEnabled(m_permitido);
    m_quitar->setEnabled(m_permitido);
}

void LineasEditables::Pintar() {
    const QSignalBlocker silencio(m_rejilla);
    m_rejilla->setRowCount(
        std::max(1, static_cast<int>(m_lineas.size()))); // without data one empty line stays
    for (int f = 0; f < m_rejilla->rowCount(); ++f)
        PintarFila(f);
    m_rejilla->setCurrentCell(0, 0); // screen readers need a current cell
    m_rejilla->clearSelection();
}

void LineasEditables::PintarFila(int fila) {
    const bool vacia = fila >= static_cast<int>(m_lineas.size());
    for (int c = 0; c < m_rejilla->columnCount(); ++c) {
        const auto columna = static_cast<std::size_t>(c);
        auto* celda = m_rejilla->item(fila, c);
        if (!celda)
            m_rejilla->setItem(fila, c, celda = new QTableWidgetItem);
        celda->setText(
            vacia ? QString()
                  : QString::fromStdString(m_lineas[static_cast<std::size_t>(fila)].celdas[columna]));
        const auto clase = m_definicion.columnas[columna].clase;
        if (clase != ClaseCampo::Texto && clase != ClaseCampo::Fecha)
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

QString LineasEditables::Celda(int fila, std::size_t columna) const {
    return fila < 0 ? QString()
                    : QString::fromStdString(m_lineas[static_cast<std::size_t>(fila)].celdas[columna]);
}

void LineasEditables::Elegir(int fila) {
    const bool hay = fila >= 0 && fila < static_cast<int>(m_lineas.size());
    m_fila = hay ? fila : -1;
    for (auto& e : m_entradas)
        e.Poner(Celda(m_fila, e.Columna()));
    Ofrecer();
    Rotular();
}

// What stands in the fields now was not typed.
void LineasEditables::Ofrecer() {
    m_ofrecido.clear();
    for (const auto& e : m_entradas)
        m_ofrecido << e.Leer();
}

// Another line is asked for. What stands in the fields goes into the list first, or is given up, as the user says.
void LineasEditables::Pasar(int fila) {
    if (fila == m_fila)
        return;
    if (!EnCurso())
        return Elegir(fila);
    const auto destino = fila < static_cast<int>(m_lineas.size()) && fila >= 0
                             ? m_lineas[static_cast<std::size_t>(fila)].celdas
                             : std::vector<std::string>();
    if (!Resolver())
        return Situar(m_fila);
    const auto it =
        std::find_if(m_lineas.begin(), m_lineas.end(), [&](const Linea& l) { return l.celdas == destino; });
    if (it == m_lineas.end())
        return;
    const int nueva = static_cast<int>(it - m_lineas.begin());
    Situar(nueva);
    m_rejilla->selectRow(nueva);
    Elegir(nueva);
    m_rejilla->setFocus();
}

// False when the fields keep what stands in them.
bool LineasEditables::Resolver() {
    if (!EnCurso())
        return true;
    if (!Preguntar(this, QStringLiteral("Atención"),
                   QStringLiteral("Hay una línea escrita que no está en la lista. ¿Desea ponerla?"),
                   TipoMensaje::Pregunta, true)) {
        LimpiarEntradas();
        return true;
    }
    Confirmar();
    return !EnCurso();
}

// The current cell without choosing its line.
void LineasEditables::Situar(int fila) {
    const QSignalBlocker silencio(m_rejilla);
    m_rejilla->setCurrentCell(std::clamp(fila, 0, m_rejilla->rowCount() - 1), 0);
}

void LineasEditables::LimpiarEntradas() {
    m_fila = -1;
    for (auto& e : m_entradas)
        e.Poner({});
    Ofrecer();
    Rotular();
}

void LineasEditables::Rotular() {
    Habilitar();
    if (m_fila >= 0)
        m_estado->setText(QStringLiteral("Línea ") + AñoDe(m_lineas[static_cast<std::size_t>(m_fila)]));
    else
        m_estado->setText(m_definicion.conAltas ? QStringLiteral("Línea nueva") : QString());
}

QString LineasEditables::AñoDe(const Linea& linea) const {
    const int nombre = m_definicion.columnaAño < 0 ? m_definicion.columnaNombre : m_definicion.columnaAño;
    if (nombre < 0)
        return QString::number(&linea - m_lineas.data() + 1);
    return QString::fromStdString(linea.celdas[static_cast<std::size_t>(nombre)]);
}

bool LineasEditables::EnCurso() const {
    for (std::size_t i = 0; i < m_entradas.size(); ++i)
        if (m_entradas[i].Leer() != m_ofrecido.value(static_cast<qsizetype>(i)))
            return true;
    return false;
}

bool LineasEditables::EnBlanco() const {
    return std::all_of(m_entradas.begin(), m_entradas.end(),
                       [](const auto& e) { return e.Leer().isEmpty(); });
}

void LineasEditables::Nueva() {
    if (!m_definicion.conAltas || m_entradas.empty() || !m_entradas.front().Control()->isEnabled())
        return;
    if (!Resolver())
        return;
    m_rejilla->clearSelection();
    LimpiarEntradas();
    m_entradas.front().Control()->setFocus();
    if (alProponer) {
        alProponer();
        Ofrecer();
    }
}

void LineasEditables::Abandonar() {
    m_rejilla->clearSelection();
    LimpiarEntradas();
    m_rejilla->setFocus();
}

void LineasEditables::Quitar() {
    const int fila = m_rejilla->currentRow();
    if (!m_definicion.conAltas || !m_quitar->isEnabled() || fila < 0 ||
        fila >= static_cast<int>(m_lineas.size()))
        return;
    if (fila != m_fila && EnCurso()) {
        Resolver(); // first the line that is being written
        return;
    }
    const auto lugar = static_cast<std::size_t>(fila);
    if (!Preguntar(this, QString::fromUtf8(m_definicion.tituloEliminar),
                   QString::fromUtf8(m_definicion.eliminar) + AñoDe(m_lineas[lugar])))
        return;
    const auto quitada = std::move(m_lineas[lugar]);
    m_lineas.erase(m_lineas.begin() + fila);
    Pintar();
    LimpiarEntradas();
    if (alQuitar)
        alQuitar(quitada);
    if (alCambiar)
        alCambiar();
    Situar(fila); // the line that came up in its place is not in the fields: what is typed next is a new one
}

bool LineasEditables::Valida(const Linea& linea) {
    const auto rechazar = [this](const QString& texto) {
        Avisar(this, TipoMensaje::Atencion, QString::fromUtf8(m_definicion.tituloAviso), texto);
        m_entradas.front().Control()->setFocus();
        return false;
    };
    if (m_definicion.columnaAño >= 0 && m_definicion.conAltas) {
        const auto año = static_cast<std::size_t>(m_definicion.columnaAño);
        const auto cifras = linea.celdas[año].size();
        if (cifras == 0)
            return rechazar(QString::fromUtf8(m_definicion.sinAño));
        // Two lines of one year may have come from elsewhere; as long as their years are left alone they can be edited.
        const bool mismo =
            m_fila >= 0 && m_lineas[static_cast<std::size_t>(m_fila)].celdas[año] == linea.celdas[año];
        if (!mismo && cifras != 4)
            return rechazar(QStringLiteral("El año debe tener cuatro cifras"));
        for (std::size_t i = 0; !mismo && i < m_lineas.size(); ++i)
            if (static_cast<int>(i) != m_fila && m_lineas[i].Numero(año) == linea.Numero(año))
                return rechazar(QString::fromUtf8(m_definicion.repetido) + AñoDe(linea) +
                                QString::fromUtf8(m_definicion.repetidoFin));
    }
    return ValidaCeldas(linea) && (!comprobar || comprobar(linea));
}

// What the database would refuse is refused here, while it can be mended; a cell that nobody touched is nobody's fault.
bool LineasEditables::ValidaCeldas(const Linea& linea) {
    if (m_definicion.tecleadoVale)
        return true;
    for (const auto& e : m_entradas) {
        const auto& celda = linea.celdas[e.Columna()];
        const auto clase = m_definicion.columnas[e.Columna()].clase;
        if (celda.empty() || e.Combo() ||
            (e.Columna() < linea.leidos.size() && Intacto(linea.leidos[e.Columna()], celda)))
            continue;
        const bool fecha = clase == ClaseCampo::Fecha;
        double n = 0;
        if (clase == ClaseCampo::Texto || (fecha ? EsFechaValida(celda) : NumeroDeTexto(celda, n)))
            continue;
        Avisar(this, TipoMensaje::Atencion, QStringLiteral("Atención"),
               fecha ? QStringLiteral("La fecha no es correcta, dd/mm/aa")
                     : QStringLiteral("El número no es correcto: ") + QString::fromStdString(celda));
        e.Control()->setFocus();
        return false;
    }
    return true;
}

// What stands in the fields as a line: the chosen one with its cells changed, or a new one.
Linea LineasEditables::Escrita() const {
    Linea linea;
    if (m_fila >= 0)
        linea = m_lineas[static_cast<std::size_t>(m_fila)];
    else
        linea.celdas.resize(m_definicion.columnas.size());
    for (const auto& e : m_entradas)
        if (const auto texto = e.Leer(); texto != Celda(m_fila, e.Columna())) {
            const auto celda = texto.trimmed().toStdString();
            const bool fecha = m_definicion.columnas[e.Columna()].clase == ClaseCampo::Fecha;
            linea.celdas[e.Columna()] = fecha ? FechaCorta(celda) : celda;
        }
    return linea;
}

// A new line goes behind the others, or over the last one where there is no room for more; a line emptied of everything goes.
void LineasEditables::Colocar(Linea linea) {
    const bool llena = m_definicion.limite > 0 && static_cast<int>(m_lineas.size()) >= m_definicion.limite;
    const bool vacia = m_definicion.columnaAño < 0 && std::all_of(linea.celdas.begin(), linea.celdas.end(),
                                                                  [](const auto& c) { return c.empty(); });
    if (m_fila < 0 && llena)
        m_lineas.back() = std::move(linea);
    else if (m_fila < 0)
        m_lineas.push_back(std::move(linea));
    else if (vacia)
        m_lineas.erase(m_lineas.begin() + m_fila);
    else
        m_lineas[static_cast<std::size_t>(m_fila)] = std::move(linea);
    Ordenar();
}

void LineasEditables::Confirmar() {
    if (m_fila < 0 && (!m_definicion.conAltas || (m_definicion.columnaAño < 0 && EnBlanco())))
        return;
    auto linea = Escrita();
    if (!Valida(linea))
        return;
    const auto puesta = linea.celdas;
    const bool nueva = m_fila < 0;
    Colocar(std::move(linea));
    m_fila = -1;
    Pintar();
    const auto it =
        std::find_if(m_lineas.begin(), m_lineas.end(), [&](const Linea& l) { return l.celdas == puesta; });
    Situar(static_cast<int>(it - m_lineas.begin()));
    m_rejilla->clearSelection();
    LimpiarEntradas();
    if (alCambiar)
        alCambiar();
    // On to the next one: a new line after a new line, the grid after a changed one.
    (nueva && !m_definicion.introAcepta ? m_entradas.front().Control() : static_cast<QWidget*>(m_rejilla))
        ->setFocus();
}

void LineasEditables::Ordenar() {
    if (m_definicion.columnaAño < 0 || !m_definicion.conAltas)
        return;
    const auto año = static_cast<std::size_t>(m_definicion.columnaAño);
    std::stable_sort(m_lineas.begin(), m_lineas.end(), [&](const Linea& a, const Linea& b) {
        return m_definicion.descendente ? a.Numero(año) > b.Numero(año) : a.Numero(año) < b.Numero(año);
    });
}

} // namespace pastorix
