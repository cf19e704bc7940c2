#include "frame/SegundoPlano.h"

#include <QEventLoop>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <future>

namespace pastorix {

void EsperarEnSegundoPlano(const std::function<void(const AvanceDeApertura&)>& trabajo,
                           const AvanceDeApertura& avance) {
    using namespace std::chrono_literals;
    std::atomic<int> hecho = 0;
    std::atomic<int> total = 0;
    auto fin = std::async(std::launch::async, [&] {
        trabajo([&](int h, int t) {
            hecho = h;
            total = t;
        });
    });
    // Most works are done before anybody would notice; the others let the windows live.
    if (fin.wait_for(20ms) != std::future_status::ready) {
        QEventLoop bucle;
        QTimer reloj;
        QObject::connect(&reloj, &QTimer::timeout, &bucle, [&] {
            if (fin.wait_for(0s) == std::future_status::ready)
                bucle.quit();
            else if (avance)
                avance(hecho, total);
        });
        reloj.start(25ms);
        bucle.exec(QEventLoop::ExcludeUserInputEvents);
    }
    fin.get();
}

} // namespace pastorix
