// PC stands twice and TDC not at all.
#include "log/Par_Diplome.h"

constexpr Par_Diplome<int> table = {{
    {Diplome::Ch_DFCF, 0}, {Diplome::Ch_DMF, 1}, {Diplome::DAF, 2},   {Diplome::DCF, 3},  {Diplome::DCPF, 4},
    {Diplome::DDFM, 5},    {Diplome::DFCF, 6},   {Diplome::DFF, 7},   {Diplome::DIFI, 8}, {Diplome::DIFM, 9},
    {Diplome::DLF, 10},    {Diplome::DMF, 11},   {Diplome::DOHF, 12}, {Diplome::DPF, 13}, {Diplome::DPLF, 14},
    {Diplome::DVFF, 15},   {Diplome::DYLF, 16},  {Diplome::FFF, 17},  {Diplome::PC, 18},  {Diplome::PC, 19},
    {Diplome::WLF, 20},
}};
