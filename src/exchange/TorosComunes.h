#pragma once

#include "exchange/FormularioDeRuta.h"
#include "exchange/datos/CatalogoDeToros.h"

class QListWidget;

namespace pastorix {

// The centre hands out the bulls of the shared farmers.
class Exp_TC : public FormularioDeRuta {
    Q_OBJECT

public:
    explicit Exp_TC(Sesion& sesion, QWidget* padre = nullptr);
    bool Aceptar() override;

protected:
    QString NombreSinExtension() const override { return QStringLiteral("xToros"); }

private:
    QListWidget* m_toros; // List1
    Compartidos m_compartidos;
};

// A database takes them in.
class Imp_TC : public FormularioDeRuta {
    Q_OBJECT

public:
    explicit Imp_TC(Sesion& sesion, QWidget* padre = nullptr);
    bool Aceptar() override;
    // What would change; only a staging file is written. Throws as the route does.
    Comparacion Simular();

protected:
    QString NombreSinExtension() const override { return QStringLiteral("xToros"); }

private:
    bool Existe();
    std::filesystem::path Etapa() const;
    void Preparar();
    bool PermiteNombres(const std::vector<ToroQueCambia>& toros);
};

} // namespace pastorix
