#pragma once

#include "frame/selector/FiltroSelector.h"
#include "frame/selector/ModSelector.h"
#include "store/Valor.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QToolButton;
class QVBoxLayout;

namespace pastorix {

class FranjaFiltros;
class GridSelector;
class ModeloSelector;

// How a selector ended, and what was chosen in it.
struct Eleccion {
    std::uint8_t fin = 0;                            // 27 if the user left with Escape, else 0
    double clave = 0;                                // the chosen key; 0 if nothing was chosen
    std::string texto;                               // the cow's compound name for kinds 14 and 17, else ""
    std::vector<std::pair<std::string, Valor>> fila; // the whole chosen row in the statement's order

    // A field of the chosen row without regard to case; Null when there is none of that name.
    const Valor& De(std::string_view campo) const;
};

// The list-and-pick window: a row is looked for as one types, or filtered for above the columns, and chosen with Enter or a double click.
class Selector : public QDialog {
    Q_OBJECT

public:
    // Opens the list. Throws ErrorAlmacen when its statement fails.
    Selector(Conexion& conexion, ListaSelector lista, QWidget* padre = nullptr);
    ~Selector() override;

    // Shows the list modally; what was chosen, or nothing when the user left with Escape or closed the window, and for a plain list.
    // A list that cannot be opened is told in a box.
    static std::optional<Eleccion> Elegir(Conexion& conexion, ListaSelector lista, QWidget* padre);
    // The same after PrepararSelector(conexion, tipo, texto).
    static std::optional<Eleccion> Elegir(Conexion& conexion, TipoSelector tipo, std::string_view texto,
                                          QWidget* padre);

    // Valid once the window is closed; fin already before.
    const Eleccion& Resultado() const { return m_eleccion; }

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearBarra(QVBoxLayout& columna);
    QWidget* CrearBusqueda();
    void CrearLista(std::unique_ptr<Recordset> filas);
    void ConectarLista();
    void AjustarColumnas();
    std::unique_ptr<Recordset> Abrir() const;
    void Filtrar();
    void Ordenar(int columna);
    void Buscar(const QString& texto);
    void Contar();
    QString PorQueNada() const;
    void AlaLista();
    void Elegida(int fila);

    Conexion& m_conexion;
    ListaSelector m_lista;
    bool m_conBajas = false;
    Eleccion m_eleccion;
    std::vector<ColumnaDeFiltro> m_columnas;
    std::string m_filtro;    // of the list on show
    int m_columnaOrden = -1; // that the list is sorted by; -1 its own order
    bool m_descendente = false;
    ModeloSelector* m_modelo = nullptr;
    GridSelector* m_rejilla = nullptr;
    FranjaFiltros* m_filtros = nullptr;
    QToolButton* m_boton = nullptr;
    QLineEdit* m_busca = nullptr;
    QWidget* m_vuelta = nullptr; // the box from which the list was entered
    QLabel* m_estado = nullptr;
};

} // namespace pastorix
