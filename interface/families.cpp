#include "interface/families.h"

#include "builtins/families.h"
#include "dde/dde_family.h"
#include "desktop/desktop_family.h"
#include "dialogs/dialogs_family.h"
#include "engine/dispatcher.h"
#include "odbc/odbc_family.h"
#include "report/report_family.h"
#include "xml/xml_family.h"

namespace mx {

void installBuiltinFamilies() {
    static const DispatchFamily *const kFamilies[] = {
        &kLanguageFamily, &kTextFamily, &kNumberFamily, &kFileFamily, &kXmlFamily,
        &kDesktopFamily,  &kDialogsFamily, &kDdeFamily,  &kOdbcFamily, &kReportFamily,
    };
    dispatchInstall(kFamilies, int32_t(sizeof kFamilies / sizeof kFamilies[0]));
}

}  // namespace mx
