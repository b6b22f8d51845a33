#include "qt/QtFormRegistry.h"

#include "controls/Form.h"

namespace orbidex {

QWidget* QtFormRegistry::Create(Form& form) const {
    const auto it = factories_.find(form.Name());
    return it == factories_.end() ? nullptr : it->second(form);
}

}  // namespace orbidex
