#include "vcl/classes/FormError.h"

#include <utility>

EFormTextError::EFormTextError(const std::string& ADetail, int ALine)
    : EParserError(ADetail + " on line " + std::to_string(ALine)),
      Detail(ADetail),
      Line(ALine)
{}

EFormDataError::EFormDataError(const std::string& ADetail, std::size_t AOffset)
    : EReadError(ADetail + " at offset " + std::to_string(AOffset)),
      Detail(ADetail),
      Offset(AOffset)
{}

void EFormDataError::Locate(const std::string& Place)
{
    if (std::exchange(FLocated, true) || Place.empty())
        return;
    Message = Detail + Place;
}
