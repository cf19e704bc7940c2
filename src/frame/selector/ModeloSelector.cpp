#include "frame/selector/ModeloSelector.h"

#include "frame/selector/FiltroSelector.h"

#include <algorithm>
#include <utility>

namespace pastorix {

ModeloSelector::ModeloSelector(std::vector<std::string> titulos, QObject* padre)
    : QAbstractTableModel(padre)
    , m_titulos(std::move(titulos)) {}

ModeloSelector::~ModeloSelector() = default;

void ModeloSelector::Poner(std::unique_ptr<Recordset> lista) {
    beginResetModel();
    m_lista = std::move(lista);
    m_actual = 0;
    endResetModel();
}

int ModeloSelector::rowCount(const QModelIndex& padre) const {
    return padre.isValid() || !m_lista ? 0 : static_cast<int>(m_lista->Contar());
}

int ModeloSelector::columnCount(const QModelIndex& padre) const {
    return padre.isValid() || !m_lista ? 0 : m_lista->Campos();
}

// A recordset only walks forward. Views read rows in order, so that the walk from the start happens about once per painting: a
// tenth of a millisecond in a list of twenty thousand.
Recordset& ModeloSelector::EnFila(int fila) const {
    if (fila < m_actual) {
        m_lista->Primero();
        m_actual = 0;
    }
    for (; m_actual < fila; ++m_actual)
        m_lista->Siguiente();
    return *m_lista;
}

QString ModeloSelector::Texto(const QModelIndex& indice) const {
    auto texto = QString::fromStdString(EnFila(indice.row())[indice.column()].Texto());
    // Veterinarians' cells hold a line break before the district.
    texto.replace(QLatin1String("\r\n"), QLatin1String(" "));
    texto.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return texto.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QVariant ModeloSelector::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid() || !m_lista)
        return {};
    switch (papel) {
    case Qt::DisplayRole:
        return Texto(indice);
    case Qt::AccessibleTextRole: {
        const auto titulo = headerData(indice.column(), Qt::Horizontal, papel).toString();
        return titulo.isEmpty() ? Texto(indice) : QString(titulo + QStringLiteral(": ") + Texto(indice));
    }
    case Qt::TextAlignmentRole:
        return int((m_lista->TipoCampo(indice.column()) == TipoNumero ? Qt::AlignRight : Qt::AlignLeft) |
                   Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ModeloSelector::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion != Qt::Horizontal || papel != Qt::AccessibleTextRole || seccion < 0 ||
        seccion >= static_cast<int>(m_titulos.size()))
        return {};
    return QString::fromStdString(m_titulos[static_cast<std::size_t>(seccion)]);
}

} // namespace pastorix
