#include "reports/formularios/ComboGanaderos.h"

#include "store/Recordset.h"

#include <QKeyEvent>

namespace pastorix {

std::vector<GanaderoOfrecido> LeerGanaderosOfrecidos(Conexion& c, const std::string& donde) {
    std::vector<GanaderoOfrecido> leidos;
    for (Recordset rs(c, "Select * FROM T_Ganaderos" + donde + " ORDER BY Nombre, Apellidos"); !rs.Eof();
         rs.Siguiente())
        leidos.push_back({rs["Id_Ganadero"].Numero(),
                          QString::fromStdString(rs["Nombre"].Texto() + " " + rs["Apellidos"].Texto())});
    return leidos;
}

QString EleccionDeGanadero::NombreElegido() const {
    const double id = Elegido();
    for (const auto& g : Ofrecidos())
        if (g.id == id)
            return g.nombre.trimmed();
    return {};
}

ComboGanaderos::ComboGanaderos(Conexion& c, const std::string& donde, const QString& nombre,
                               const QString& ninguno, QWidget* padre)
    : QComboBox(padre)
    , m_ofrecidos(LeerGanaderosOfrecidos(c, donde)) {
    setObjectName(nombre);
    setAccessibleName(QStringLiteral("Ganadero"));
    setPlaceholderText(ninguno);
    setToolTip(QStringLiteral("Supr: ninguno"));
    for (const auto& g : m_ofrecidos)
        addItem(g.nombre);
    setCurrentIndex(-1);
}

bool ComboGanaderos::Elegir(double id) {
    const auto it = std::find_if(m_ofrecidos.begin(), m_ofrecidos.end(),
                                 [&](const GanaderoOfrecido& g) { return g.id == id; });
    if (it == m_ofrecidos.end())
        return false;
    setCurrentIndex(static_cast<int>(it - m_ofrecidos.begin()));
    return true;
}

double ComboGanaderos::Elegido() const {
    return currentIndex() < 0 ? 0 : m_ofrecidos[static_cast<std::size_t>(currentIndex())].id;
}

void ComboGanaderos::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Delete)
        setCurrentIndex(-1);
    else
        QComboBox::keyPressEvent(e);
}

} // namespace pastorix
