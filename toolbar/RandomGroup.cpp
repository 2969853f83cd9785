#include "toolbar/RandomGroup.h"

#include <random>

int RandomGroup(int Last)
{
    static std::minstd_rand Generator(std::random_device{}());
    return std::uniform_int_distribution(1, Last)(Generator);
}
