// Preloaded by ./run where there is no display. Qt's VNC platform listens on every address of the machine and has no
// option for it; the operator's screen must be reachable from this machine alone.

#include <arpa/inet.h>
#include <cstring>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace {

using Liaison = int (*)(int, const sockaddr *, socklen_t);

/// The address with "any" turned into the loopback one.
sockaddr_storage En_Boucle(const sockaddr *adresse, socklen_t taille)
{
    sockaddr_storage copie{};
    std::memcpy(&copie, adresse, taille < sizeof copie ? taille : sizeof copie);
    if (copie.ss_family == AF_INET) {
        auto *ipv4 = reinterpret_cast<sockaddr_in *>(&copie);
        if (ipv4->sin_addr.s_addr == htonl(INADDR_ANY))
            ipv4->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    } else if (copie.ss_family == AF_INET6) {
        auto *ipv6 = reinterpret_cast<sockaddr_in6 *>(&copie);
        // The IPv4 loopback address within IPv6: a viewer that is told 127.0.0.1 finds it.
        if (IN6_IS_ADDR_UNSPECIFIED(&ipv6->sin6_addr))
            inet_pton(AF_INET6, "::ffff:127.0.0.1", &ipv6->sin6_addr);
    }
    return copie;
}

} // namespace

extern "C" int bind(int prise, const sockaddr *adresse, socklen_t taille)
{
    static const auto suivante = reinterpret_cast<Liaison>(dlsym(RTLD_NEXT, "bind"));
    const sockaddr_storage copie = En_Boucle(adresse, taille);
    return suivante(prise, reinterpret_cast<const sockaddr *>(&copie), taille);
}
