#include "frame/ControlEquipos.h"

#include "frame/Mensajes.h"
#include "frame/Tablas.h"
#include "frame/Ventanas.h"
#include "store/Recordset.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace pastorix {

std::vector<std::array<std::string, 3>> RelacionDeDistribucion(Conexion& conexion) {
    std::vector<std::array<std::string, 3>> filas;
    Recordset rs(conexion,
                 "SELECT T_Veterinarios.NombreVet, T_Ganaderos.Nombre, T_Ganaderos.Apellidos FROM "
                 "T_Ganaderos LEFT JOIN "
                 "T_Veterinarios ON T_Ganaderos.Id_Veterinario = T_Veterinarios.Id_Veterinario ORDER BY "
                 "T_Veterinarios.NombreVet, T_Ganaderos.Nombre, T_Ganaderos.Apellidos",
                 Cursor::Keyset, Bloqueo::SoloLectura);
    for (; !rs.Eof(); rs.Siguiente())
        filas.push_back({rs[0].Texto(), rs[1].Texto(), rs[2].Texto()});
    return filas;
}

ControlEquipos::ControlEquipos(const std::vector<std::array<std::string, 3>>& filas, QWidget* padre)
    : QDialog(padre) {
    setObjectName(QStringLiteral("ControlEquipos"));
    setWindowTitle(QStringLiteral("Relación de Distribución"));
    setWindowModality(Qt::WindowModal);

    auto* rejilla = new QTableWidget(static_cast<int>(filas.size()), 3, this);
    rejilla->setObjectName(QStringLiteral("Grid"));
    rejilla->setAccessibleName(windowTitle());
    rejilla->setHorizontalHeaderLabels(
        {QStringLiteral("Veterinario"), QStringLiteral("Nombre"), QStringLiteral("Apellidos")});
    VestirTabla(*rejilla);
    for (int fila = 0; fila < rejilla->rowCount(); ++fila)
        for (int columna = 0; columna < 3; ++columna)
            rejilla->setItem(fila, columna,
                             new QTableWidgetItem(QString::fromStdString(
                                 filas[static_cast<std::size_t>(fila)][static_cast<std::size_t>(columna)])));
    OrdenarPorTitulos(*rejilla);
    if (!filas.empty())
        rejilla->setCurrentCell(0, 0); // screen readers want a current cell
    rejilla->horizontalHeader()->setDefaultSectionSize(190);
    rejilla->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(rejilla);
    resize(620, 420);
    RecordarVentana(*this);
}

void MostrarControlEquipos(Sesion& sesion, QWidget* padre) {
    try {
        ControlEquipos(RelacionDeDistribucion(sesion.conexion), padre).exec();
    } catch (const ErrorAlmacen& error) {
        AvisarFallo(padre, QStringLiteral("Atención..."), error.Numero(), error);
    }
}

} // namespace pastorix
