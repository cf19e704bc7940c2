// A database from elsewhere: opened with distrust, whatever its bytes. It opens or ends in an error with a text; nothing else.
#include "store/Conexion.h"
#include "store/Esquema.h"
#include "store/Recordset.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    using namespace pastorix;
    static QTemporaryDir carpeta;
    static const std::string fichero = carpeta.filePath(QStringLiteral("paquete.mdb")).toStdString();
    if (auto* f = std::fopen(fichero.c_str(), "wb")) {
        std::fwrite(datos, 1, n, f);
        std::fclose(f);
    }
    OpcionesApertura o;
    o.desconfiada = true;
    o.trabajo = false;
    Conexion c;
    try {
        c.AbrirFichero(fichero, kClave, o);
        for (const auto& t : c.Esquema().Tablas())
            (void)Recordset(c, "SELECT * FROM [" + t.nombre + "]", Cursor::Keyset, Bloqueo::SoloLectura)
                .Contar();
    } catch (const ErrorAlmacen& e) {
        if (e.what()[0] == '\0')
            std::abort();
    }
    return 0;
}
