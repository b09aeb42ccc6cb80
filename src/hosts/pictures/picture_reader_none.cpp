#include "hosts/pictures/picture_reader.h"

namespace tavo::pictures {

bool Picture_Size(const std::string&, int&, int&)
{
    return false;
}

bool Picture_SavePng(const std::string&, int, int, const std::string&)
{
    return false;
}

} // namespace tavo::pictures
