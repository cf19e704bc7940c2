#pragma once

#include <sys/resource.h>

#include <csignal>

namespace prueba {

// A disk with room for so many bytes in any one file, until the object goes: what a full one does to whoever writes, without
// one being filled.
class DiscoLleno {
public:
    explicit DiscoLleno(rlim_t bytes) {
        m_señal = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead of the process
        getrlimit(RLIMIT_FSIZE, &m_anterior);
        const rlimit limite{bytes, m_anterior.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &m_anterior);
        std::signal(SIGXFSZ, m_señal);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

private:
    rlimit m_anterior{};
    void (*m_señal)(int) = nullptr;
};

} // namespace prueba
