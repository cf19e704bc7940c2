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

void LineasEditables::Mostrar(std::vector<Linea> lineas) {
    m_lineas = std::move(lineas);
    m_fila = -1;
    Pintar();
    LimpiarEntradas();
}

void LineasEditables::FijarLista(std::size_t columna, const QStringList& valores) {
    for (auto& e : m_entradas)
        if (e.Columna() == columna && e.Combo()) {
            const auto antes = e.Leer();
            e.Listar(valores);
            e.Poner(antes);
        }
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
    Rotular();
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
    if (m_definicion.columnaAño < 0)
        return QString::number(&linea - m_lineas.data() + 1);
    return QString::fromStdString(linea.celdas[static_cast<std::size_t>(m_definicion.columnaAño)]);
}

bool LineasEditables::EnCurso() const {
    return std::any_of(m_entradas.begin(), m_entradas.end(),
                       [this](const auto& e) { return e.Leer() != Celda(m_fila, e.Columna()); });
}

void LineasEditables::Nueva() {
    if (!m_definicion.conAltas || m_entradas.empty() || !m_entradas.front().Control()->isEnabled())
        return;
    if (!Resolver())
        return;
    m_rejilla->clearSelection();
    LimpiarEntradas();
    m_entradas.front().Control()->setFocus();
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
    for (const auto& e : m_entradas) {
        const auto& celda = linea.celdas[e.Columna()];
        const auto clase = m_definicion.columnas[e.Columna()].clase;
        if (celda.empty() || e.Combo() ||
            (e.Columna() < linea.leidos.size() && TextoDe(linea.leidos[e.Columna()]) == celda))
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
        if (const auto texto = e.Leer(); texto != Celda(m_fila, e.Columna()))
            linea.celdas[e.Columna()] = texto.trimmed().toStdString();
    return linea;
}

void LineasEditables::Confirmar() {
    if (m_fila < 0 && (!m_definicion.conAltas || (m_definicion.columnaAño < 0 && !EnCurso())))
        return;
    auto linea = Escrita();
    if (!Valida(linea))
        return;
    const auto puesta = linea.celdas;
    const bool nueva = m_fila < 0;
    const bool vaciada = m_definicion.columnaAño < 0 &&
                         std::all_of(puesta.begin(), puesta.end(), [](const auto& c) { return c.empty(); });
    if (nueva)
        m_lineas.push_back(std::move(linea));
    else if (vaciada)
        m_lineas.erase(m_lineas.begin() + m_fila);
    else
        m_lineas[static_cast<std::size_t>(m_fila)] = std::move(linea);
    Ordenar();
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
    (nueva ? m_entradas.front().Control() : static_cast<QWidget*>(m_rejilla))->setFocus();
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
