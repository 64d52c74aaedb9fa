#include "apps/tables/OgrErrors.h"

#include <cpl_error.h>

namespace tolvik::tables {

namespace {

void receive(CPLErr kind, CPLErrorNum, const char* text)
{
    if (kind >= CE_Failure) {
        static_cast<OgrErrors*>(CPLGetErrorHandlerUserData())->add(QString::fromUtf8(text).simplified());
    }
}

} // namespace

OgrErrors::OgrErrors()
{
    CPLPushErrorHandlerEx(receive, this);
}

OgrErrors::~OgrErrors()
{
    CPLPopErrorHandler();
}

QString OgrErrors::last() const
{
    return reason.isEmpty() ? QStringLiteral("the format has no room for it") : reason;
}

} // namespace tolvik::tables
