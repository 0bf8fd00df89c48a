#pragma once

#include "plateforme/Telechargement.h"

/// What a fetch may cost; beyond one of them there is no body.
struct Limites_Telechargement {
    int silence_ms = 30'000; ///< without a byte
    int total_ms = 120'000;
    qsizetype octets = qsizetype{64} * 1024 * 1024;
    int redirections = 20;
};

/// Plain GET without a cache, through the system's proxy. The screens are painted meanwhile, with a busy cursor; keys
/// and clicks wait.
class Telechargement_Qt : public Telechargement {
public:
    explicit Telechargement_Qt(const Limites_Telechargement &limites = {});
    [[nodiscard]] QByteArray Corps(const QString &adresse) override;

private:
    Limites_Telechargement limites_;
};
