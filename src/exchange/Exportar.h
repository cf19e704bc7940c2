#pragma once

#include "exchange/FormularioDeRuta.h"

class QComboBox;

namespace pastorix {

// The centre makes a veterinarian's package.
class Exportar : public FormularioDeRuta {
    Q_OBJECT

public:
    explicit Exportar(Sesion& sesion, QWidget* padre = nullptr);
    // False when the list does not offer him.
    bool MarcarUsuario(const QString& usuario);
    bool Aceptar() override;

protected:
    QString NombreSinExtension() const override;

private:
    void Hacer(const std::filesystem::path& destino, const std::string& usuario);
    void AvisarDeLasClaves();

    QComboBox* m_usuarios; // Cb_E
};

} // namespace pastorix
