#pragma once

#include "store/Conexion.h"

#include <QComboBox>

#include <vector>

namespace pastorix {

struct GanaderoOfrecido {
    double id = 0;
    QString nombre;
};

// Whatever a form lets its farmer be chosen with.
class EleccionDeGanadero {
public:
    virtual ~EleccionDeGanadero() = default;
    virtual const std::vector<GanaderoOfrecido>& Ofrecidos() const = 0;
    // As a click would. False when the list does not offer him.
    virtual bool Elegir(double id) = 0;
    virtual double Elegido() const = 0; // 0 when nobody is
    QString NombreElegido() const;      // "" when nobody is

protected:
    EleccionDeGanadero() = default;
    EleccionDeGanadero(const EleccionDeGanadero&) = default;
    EleccionDeGanadero& operator=(const EleccionDeGanadero&) = default;
};

// Farmers by name, with their codes.
std::vector<GanaderoOfrecido> LeerGanaderosOfrecidos(Conexion& c, const std::string& donde);

// A list of farmers of which one may be chosen; the Delete key takes the choice back.
class ComboGanaderos : public QComboBox, public EleccionDeGanadero {
public:
    // `donde` limits the farmers (" WHERE FechaBaja IS NULL"); `ninguno` is shown while nobody is chosen. Throws ErrorAlmacen.
    ComboGanaderos(Conexion& c, const std::string& donde, const QString& nombre, const QString& ninguno,
                   QWidget* padre);

    const std::vector<GanaderoOfrecido>& Ofrecidos() const override { return m_ofrecidos; }
    bool Elegir(double id) override;
    double Elegido() const override;

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    std::vector<GanaderoOfrecido> m_ofrecidos; // same index
};

} // namespace pastorix
