#pragma once

#include "exchange/FormularioDeRuta.h"
#include "exchange/datos/PasarGanadero.h"

class QListWidget;

namespace pastorix {

// Copies a removed farmer from the database in session to the other one of the folder.
class PasoGanaderos : public QDialog {
    Q_OBJECT

public:
    PasoGanaderos(Sesion& sesion, const QString& titulo, QWidget* padre = nullptr);
    // False when the list does not offer him.
    bool MarcarGanadero(double id);
    bool Aceptar();

private:
    QString Destino() const;
    void DejarUnoSolo(int fila);
    void Contar(const LoQueQuedaAtras& r, const QString& nombre);

    Sesion& m_sesion;
    QListWidget* m_lista;                    // lstGanadero
    std::vector<GanaderoDeBaja> m_ganaderos; // same rows
};

} // namespace pastorix
