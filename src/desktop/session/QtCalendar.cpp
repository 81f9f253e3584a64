// SPDX-License-Identifier: MIT
#include "desktop/session/QtCalendar.h"

#include <QDate>

namespace velto {

int QtCalendar::currentYear() const
{
    return QDate::currentDate().year();
}

} // namespace velto
