#include "Rebano.h"

#include "store/Esquema.h"
#include "store/Ficheros.h"
#include "store/Recordset.h"

#include <random>

namespace banco {

using namespace pastorix;

namespace {

constexpr double kPrimeraGranja = 12;
constexpr int kPrimerAño = 2013;
constexpr int kAños = 14;

Fecha Dia(int año, int mes, int dia) {
    return *Fecha::De(año, mes, dia);
}

} // namespace

void HacerRebaño(const std::string& fichero, int granjas, int vacasPorGranja) {
    CrearBase(Ruta(fichero), ClaseDeBase::Principal, kClave);
    Conexion c;
    c.AbrirFichero(fichero, kClave);
    std::mt19937 azar(20261122);
    const auto hasta = [&](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
    EnGrupo(c, [&] {
        Recordset g(c, "SELECT * FROM T_Ganaderos");
        for (int k = -1; k < granjas; ++k) {
            const double id = k < 0 ? 1 : kPrimeraGranja + k;
            g.AddNew();
            g["Id_Ganadero"] = id;
            g["Nombre"] = id == 1 ? "Centro" : "Nicolás";
            g["Apellidos"] = "Álvarez Suárez";
            g.Update();
        }
        Recordset toros(c, "SELECT * FROM T_Sementales");
        for (int t = 1; t <= 30; ++t) {
            toros.AddNew();
            toros["Id_Semental"] = (t <= 22 ? 1000.0 : 12000.0) + t;
            toros["Id_Ganadero"] = t <= 22 ? 1.0 : 12.0;
            toros["NombreC"] = "Toro " + std::to_string(t) + (t <= 22 ? "(IA)" : "");
            toros.Update();
        }
        Recordset v(c, "SELECT * FROM T_Vacas");
        Recordset cub(c, "SELECT * FROM T_Cubriciones");
        Recordset ser(c, "SELECT * FROM T_Servicios");
        Recordset par(c, "SELECT * FROM T_Partos");
        Recordset cebo(c, "SELECT * FROM T_Cebo");
        double idParto = 0;
        double idCebo = 0;
        for (int i = 1; i <= granjas * vacasPorGranja; ++i) {
            const double id = 1200000.0 + i;
            const double granja = kPrimeraGranja + (i - 1) / vacasPorGranja;
            const int entrada = kPrimerAño + (i % 3 == 0 ? hasta(kAños - 4) : 0);
            v.AddNew();
            v["Id_Vaca"] = id;
            v["Id_Ganadero"] = granja;
            v["Nombre"] = "Vaca " + std::to_string(i);
            v["NombreC"] = "Vaca " + std::to_string(i) + "-N";
            v["Crotal"] = "ES" + std::to_string(10000000 + i * 7919 % 89999999);
            v["Cularidad"] = i % 5 == 0 ? "G-Culón" : i % 2 ? "G-Normal" : "G-Aculonado";
            if (i % 11 == 0) {
                v["FechaBaja"] = Dia(kPrimerAño + kAños - 1 - hasta(4), 1 + hasta(11), 1 + hasta(28));
                v["FechaDesecho"] = v["FechaBaja"].Leer();
            }
            v.Update();
            int n = i % 3 == 0 ? 0 : hasta(4);
            for (int año = entrada; año < kPrimerAño + kAños; ++año, ++n) {
                const Fecha parto = Dia(año, 1 + hasta(11), 1 + hasta(28));
                cub.AddNew();
                cub["Id_Cubricion"] = ++idParto;
                cub["Id_Vaca"] = id;
                cub["Año_Ref"] = año;
                cub["N_Parto"] = n;
                if (n > 0)
                    cub["Fecha_Parto"] = parto;
                cub["IEPc"] = 340 + hasta(140);
                cub["Aborto"] = hasta(40) == 0 ? 1 : 0;
                cub["DatosCompletos"] = año < kPrimerAño + kAños - 1 ? 1 : 0;
                cub.Update();
                for (int s = 0; s <= hasta(2); ++s) {
                    ser.AddNew();
                    ser["Id_Vaca"] = id;
                    ser["Año_Ref"] = año;
                    ser["N_Parto"] = n;
                    ser["N_Servicio"] = s + 1;
                    ser["Fecha_Servicio"] = parto.MasDias(60 + 21 * s);
                    ser.Update();
                }
                if (n == 0)
                    continue;
                par.AddNew();
                par["Id_Parto"] = idParto;
                par["Id_Vaca"] = id;
                par["N_Parto"] = n;
                par["Año_Ref"] = año;
                par["Fecha_Parto"] = parto;
                par["Sexo"] = hasta(2) ? "Macho" : "Hembra";
                par["Muere"] = hasta(15) ? "No" : hasta(2) ? "Perinatal" : "AntesD";
                par["Semental"] = "Toro " + std::to_string(1 + hasta(30)) + "(IA)";
                par["Cularidad"] = i % 4 == 0 ? "Culón" : "Normal";
                par["EdadDestete"] = 110 + hasta(120);
                par["GDestete"] = 480 + hasta(800);
                par["PesoDestete"] = 150.0 + hasta(150);
                par["DESTINOTERNERO"] = hasta(3) ? "Cebo" : "Recría";
                par.Update();
                if (hasta(3) == 0)
                    continue;
                cebo.AddNew();
                cebo["Id_Cebo"] = ++idCebo;
                cebo["Id_Ganadero"] = granja;
                cebo["AñoRef"] = año;
                cebo["Sexo"] = hasta(2) ? "Macho" : "Hembra";
                cebo["Origen"] = "Propio";
                cebo["FechaCebo"] = parto.MasDias(200);
                cebo.Update();
            }
        }
    });
}

} // namespace banco
