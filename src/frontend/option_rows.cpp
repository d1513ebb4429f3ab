#include "frontend/option_rows.h"

namespace vandrel {

namespace {

class RowAdder {
  public:
    RowAdder(VandrelMenu& menu, const MenuContext& context) : menu_(menu), context_(context) {}

    void operator()(const ChoiceRow& row) const {
        const int last = static_cast<int>(row.names.size()) - 1;
        menu_.addEnum(context_.x, row.label, &(gameOptions.*row.field), row.first, last, makeNameList(row.names));
    }
    void operator()(const NumberRow& row) const {
        menu_.addInt(context_.x, row.label, &(gameOptions.*row.field), row.minValue, row.maxValue, 1);
    }
    void operator()(const SwitchRow& row) const {
        menu_.addBool(context_.x, row.label, &(gameOptions.*row.field), context_.offOnNames);
    }

  private:
    VandrelMenu& menu_;
    const MenuContext& context_;
};

}  // namespace

void addOptionRows(VandrelMenu& menu, const MenuContext& context, std::span<const OptionRow> rows) {
    for (const OptionRow& row : rows) {
        std::visit(RowAdder(menu, context), row);
    }
}

}  // namespace vandrel
