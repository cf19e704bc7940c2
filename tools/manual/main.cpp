#include "manual/Maqueta.h"
#include "manual/Pantalla.h"

#include "store/LocaleNumerico.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>

#include <iostream>

namespace {

// Reads the source, writes the PDF and, beside it, the page for the screen. Returns the exit status.
int Hacer(const QString& fuente, const QString& pdf) {
    using namespace pastorix::manual;
    QFile fichero(fuente);
    if (!fichero.open(QIODevice::ReadOnly))
        throw ErrorFuente(fichero.errorString().toStdString());
    auto documento = LeerFuente(QString::fromUtf8(fichero.readAll()));
    QFile pantalla(QString(pdf).replace(QStringLiteral(".pdf"), QStringLiteral(".html")));
    if (!pantalla.open(QIODevice::WriteOnly) || pantalla.write(PaginaHtml(documento).toUtf8()) < 0 ||
        !pantalla.flush())
        throw ErrorFuente(pantalla.fileName().toStdString() + ": " + pantalla.errorString().toStdString());
    QFile salida(pdf);
    if (!salida.open(QIODevice::WriteOnly))
        throw ErrorFuente(pdf.toStdString() + ": " + salida.errorString().toStdString());
    int paginas = 0;
    {
        QPdfWriter papel(&salida);
        papel.setResolution(1200);
        papel.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
        papel.setTitle(documento.portada.join(QStringLiteral(". ")));
        papel.setCreator(QStringLiteral("Pastorix"));
        paginas = Maqueta(papel, std::move(documento), QFileInfo(fuente).path()).Escribir();
    }
    if (!salida.flush() || salida.error() != QFileDevice::NoError)
        throw ErrorFuente(pdf.toStdString() + ": " + salida.errorString().toStdString());
    std::cout << pdf.toStdString() << ": " << paginas << " páginas\n";
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication aplicacion(argc, argv);
    pastorix::FijarLocaleNumerico();
    const QStringList argumentos = QGuiApplication::arguments();
    if (argumentos.size() != 3) {
        std::cerr << "pastorix_manual manual.md manual.pdf\n";
        return 2;
    }
    try {
        return Hacer(argumentos[1], argumentos[2]);
    } catch (const std::exception& e) {
        QFile::remove(argumentos[2]); // half a manual is none
        std::cerr << argumentos[1].toStdString() << ": " << e.what() << "\n";
        return 1;
    }
}
