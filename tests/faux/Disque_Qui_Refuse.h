#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives no file of this process takes a byte: every write fails, for root too.
class Disque_Qui_Refuse {
public:
    Disque_Qui_Refuse()
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        const rlimit rien{0, avant_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &rien);
    }
    ~Disque_Qui_Refuse() { ::setrlimit(RLIMIT_FSIZE, &avant_); }
    Disque_Qui_Refuse(const Disque_Qui_Refuse &) = delete;
    Disque_Qui_Refuse &operator=(const Disque_Qui_Refuse &) = delete;

private:
    rlimit avant_{};
};
