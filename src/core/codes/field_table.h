// A code's field table: each parameter named once, with its label, kind,
// opening text and the member of the code's parameter record it fills. The
// dialog's controls, the command-line options, the defaults and the record
// the generator receives all come from it, and the code's reactions refer to
// fields by member, so that a misspelt key cannot silently read as 0:
//
//   CodeBuilder<Atc306Params> code("atc3-06", "ATC 3-06", "ATC 3-06", title);
//   code.fields()
//       .Choice("soil", "Soil Profile Type", &P::soil, texts, keys).Radio()
//       .Number("aa", "EPA related coefficient (Aa) :", &P::aa)
//       .Grid(&P::grid);
//   return code.Build(GenerateAtc306);
#ifndef ZEL_CORE_CODES_FIELD_TABLE_H_
#define ZEL_CORE_CODES_FIELD_TABLE_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "core/codes/aggregate_members.h"
#include "core/codes/code_registry.h"
#include "core/codes/period_grid.h"
#include "core/document/c_format.h"

namespace zel {

// The "%g" texts of a list field joined by commas, and back.
std::string JoinListText(const std::vector<double>& values);
std::vector<double> SplitListText(std::string_view text);

template <class P>
class FieldTable {
 public:
  // Each adds one field. The opening text is the record's default in the
  // field's format unless Text() gives another.
  FieldTable& Number(std::string name, std::string label, double P::*member) {
    return Add(std::move(name), std::move(label), ParamKind::kNumber, member);
  }
  FieldTable& Integer(std::string name, std::string label, int P::*member) {
    return Add(std::move(name), std::move(label), ParamKind::kInteger, member);
  }
  // `keys`: the command-line words; the item texts when empty.
  FieldTable& Choice(std::string name, std::string label, int P::*member,
                     std::vector<std::string> items,
                     std::vector<std::string> keys = {}) {
    Add(std::move(name), std::move(label), ParamKind::kChoice, member);
    Last().keys = keys.empty() ? items : std::move(keys);
    Last().items = std::move(items);
    return *this;
  }
  FieldTable& Check(std::string name, std::string label, int P::*member) {
    return Add(std::move(name), std::move(label), ParamKind::kCheck, member);
  }
  FieldTable& List(std::string name, std::string label,
                   std::vector<double> P::*member, int capacity,
                   std::string full_message) {
    Add(std::move(name), std::move(label), ParamKind::kList, member);
    Last().capacity = capacity;
    Last().full_message = std::move(full_message);
    return *this;
  }
  // The "Output Period" fields From, To and Step.
  FieldTable& Grid(PeriodGrid P::*grid) {
    constexpr char kGroup[] = "Output Period";
    AddIn(grid, "from", "From", ParamKind::kNumber, &PeriodGrid::from);
    In(kGroup);
    AddIn(grid, "to", "To", ParamKind::kNumber, &PeriodGrid::to);
    In(kGroup);
    AddIn(grid, "steps", "Step", ParamKind::kInteger, &PeriodGrid::steps);
    return In(kGroup);
  }

  // Modifiers of the field added last.
  FieldTable& Text(std::string text) {
    fields_.back().text = std::move(text);
    return *this;
  }
  FieldTable& Format(std::string format) {
    Last().format = std::move(format);
    return *this;
  }
  FieldTable& In(std::string group) {
    Last().group = std::move(group);
    return *this;
  }
  FieldTable& Unit(std::string unit) {
    Last().unit = std::move(unit);
    return *this;
  }
  FieldTable& Radio() {
    Last().radio = true;
    return *this;
  }
  // A number typed or picked from these items (an editable drop-down).
  FieldTable& Offer(std::vector<std::string> items) {
    Last().items = std::move(items);
    return *this;
  }
  // Enabled only once choice `index` of `field` is selected; the command
  // line selects it when the user gives this field alone.
  FieldTable& Needs(std::string field, int index) {
    Last().switch_name = std::move(field);
    Last().switch_index = index;
    return *this;
  }

  // The descriptors, with the texts the controls open with.
  std::vector<ParamDescriptor> Descriptors() const {
    std::vector<ParamDescriptor> params;
    for (const Field& field : fields_) {
      params.push_back(field.param);
      params.back().default_text =
          field.text ? *field.text : field.show(field.param, Probe());
    }
    return params;
  }

  // The record as the generator receives it from the controls' texts.
  P Read(const ParamValues& values) const {
    P record{};
    for (const Field& field : fields_) {
      const auto it = values.find(field.param.name);
      if (it == values.end()) {
        throw std::logic_error("no text for field " + field.param.name);
      }
      field.read(it->second, record);
    }
    return record;
  }

  // The field that fills `member`; a member without one is a fault of the
  // table, reported at once.
  template <class T>
  const ParamDescriptor& FieldOf(T P::*member) const {
    return FindField(member).param;
  }

  // `value` as the field of `member` shows it.
  template <class T>
  std::string TextOf(T P::*member, const T& value) const {
    P record{};
    record.*member = value;
    const Field& field = FindField(member);
    return field.show(field.param, record);
  }

  // Positions of the record's members that no field fills.
  std::vector<std::size_t> UnboundMembers() const {
    const std::vector<const void*> members = MemberAddresses(Probe());
    const auto* end = reinterpret_cast<const char*>(&Probe()) + sizeof(P);
    std::vector<std::size_t> unbound;
    for (std::size_t i = 0; i < members.size(); ++i) {
      const auto* begin = static_cast<const char*>(members[i]);
      const auto* next = i + 1 < members.size()
                             ? static_cast<const char*>(members[i + 1])
                             : end;
      bool bound = false;
      for (const Field& field : fields_) {
        const auto* at = static_cast<const char*>(field.address);
        bound = bound || (at >= begin && at < next);
      }
      if (!bound) unbound.push_back(i);
    }
    return unbound;
  }

 private:
  struct Field {
    ParamDescriptor param;
    std::optional<std::string> text;  // an opening text given by hand
    const void* address = nullptr;    // of the member, in Probe()
    const std::type_info* type = nullptr;
    std::function<void(const std::string&, P&)> read;
    std::function<std::string(const ParamDescriptor&, const P&)> show;
  };

  // The record with its defaults; fields are told apart by their members'
  // addresses in it.
  static const P& Probe() {
    static const P probe{};
    return probe;
  }

  ParamDescriptor& Last() { return fields_.back().param; }

  template <class T>
  FieldTable& Add(std::string name, std::string label, ParamKind kind,
                  T P::*member) {
    AddSlot(std::move(name), std::move(label), kind,
            [member](auto& record) -> auto& { return record.*member; });
    return *this;
  }

  template <class T>
  void AddIn(PeriodGrid P::*grid, std::string name, std::string label,
             ParamKind kind, T PeriodGrid::*member) {
    AddSlot(std::move(name), std::move(label), kind,
            [grid, member](auto& record) -> auto& {
              return (record.*grid).*member;
            });
  }

  // A field of the member that `slot` picks out of a record.
  template <class Slot>
  void AddSlot(std::string name, std::string label, ParamKind kind,
               Slot slot) {
    using T = std::remove_cvref_t<decltype(slot(std::declval<P&>()))>;
    static_assert(std::is_same_v<T, double> || std::is_same_v<T, int> ||
                  std::is_same_v<T, std::vector<double>>);
    Field field;
    field.param.name = std::move(name);
    field.param.label = std::move(label);
    field.param.kind = kind;
    field.address = &slot(Probe());
    field.type = &typeid(T);
    field.read = [slot](const std::string& text, P& record) {
      if constexpr (std::is_same_v<T, double>) {
        slot(record) = AtoF(text);
      } else if constexpr (std::is_same_v<T, int>) {
        slot(record) = IntegerText(text);
      } else {
        slot(record) = SplitListText(text);
      }
    };
    field.show = [slot](const ParamDescriptor& param, const P& record) {
      if constexpr (std::is_same_v<T, double>) {
        return CFormat(param.format.c_str(), slot(record));
      } else if constexpr (std::is_same_v<T, int>) {
        return CFormat("%d", slot(record));
      } else {
        return JoinListText(slot(record));
      }
    };
    fields_.push_back(std::move(field));
  }

  template <class T>
  const Field& FindField(T P::*member) const {
    const void* address = &(Probe().*member);
    for (const Field& field : fields_) {
      if (field.address == address && *field.type == typeid(T)) return field;
    }
    throw std::logic_error("a parameter without a field in its code's table");
  }

  std::vector<Field> fields_;
};

// The dialog's texts seen through a code's field table, for the code's
// reactions: the record as OK would read it, which field a notification is
// about, and the fields' texts to rewrite.
template <class P>
class Form {
 public:
  Form(const FieldTable<P>& table, ParamValues& values, std::string_view field)
      : table_(table), values_(values), field_(field) {}

  P Read() const { return table_.Read(values_); }
  // Whether this call is about the field of `member`.
  template <class T>
  bool Is(T P::*member) const {
    return field_ == table_.FieldOf(member).name;
  }
  // Writes `value` into the field of `member`, in the field's format.
  template <class T>
  void Show(T P::*member, const T& value) {
    values_[table_.FieldOf(member).name] = table_.TextOf(member, value);
  }
  template <class T>
  void ShowText(T P::*member, std::string text) {
    values_[table_.FieldOf(member).name] = std::move(text);
  }
  template <class T>
  const std::string& Text(T P::*member) const {
    return values_.at(table_.FieldOf(member).name);
  }

 private:
  const FieldTable<P>& table_;
  ParamValues& values_;
  std::string_view field_;
};

// Makes a code's registry entry from its field table and its reactions.
template <class P>
class CodeBuilder {
 public:
  using Generator = std::function<bool(CZELwDoc&, const P&, MessageSink&)>;

  CodeBuilder(std::string id, std::string menu_text, std::string caption,
              std::string title) {
    entry_.id = std::move(id);
    entry_.menu_text = std::move(menu_text);
    entry_.caption = std::move(caption);
    entry_.title = std::move(title);
  }

  FieldTable<P>& fields() { return *table_; }

  // Run once the dialog's defaults are in.
  CodeBuilder& OnOpen(std::function<void(Form<P>&)> hook) {
    on_open_ = std::move(hook);
    return *this;
  }
  // After a field changed; false after a message.
  CodeBuilder& OnChange(std::function<bool(Form<P>&, MessageSink&)> hook) {
    on_change_ = std::move(hook);
    return *this;
  }
  CodeBuilder& State(std::function<FieldState(const Form<P>&)> hook) {
    state_ = std::move(hook);
    return *this;
  }
  // Checks made on OK before any document is made.
  CodeBuilder& Precheck(std::function<bool(const P&, MessageSink&)> hook) {
    precheck_ = std::move(hook);
    return *this;
  }

  CodeEntry Build(Generator generate) {
    std::shared_ptr<const FieldTable<P>> table = table_;
    CodeEntry entry = entry_;
    entry.params = table->Descriptors();
    if (on_open_) {
      entry.on_open = [table, hook = on_open_](ParamValues& values) {
        Form<P> form(*table, values, {});
        hook(form);
      };
    }
    if (on_change_) {
      entry.on_change = [table, hook = on_change_](
                            ParamValues& values, std::string_view field,
                            MessageSink& messages) {
        Form<P> form(*table, values, field);
        return hook(form, messages);
      };
    }
    if (state_) {
      entry.state = [table, hook = state_](const ParamValues& values,
                                           std::string_view field) {
        // The form only reads here.
        Form<P> form(*table, const_cast<ParamValues&>(values), field);
        return hook(form);
      };
    }
    if (precheck_) {
      entry.precheck = [table, hook = precheck_](const ParamValues& values,
                                                 MessageSink& messages) {
        return hook(table->Read(values), messages);
      };
    }
    entry.generate = [table, generate = std::move(generate)](
                         const ParamValues& values, CZELwDoc& doc,
                         MessageSink& messages) {
      return generate(doc, table->Read(values), messages);
    };
    entry.unbound_members = [table] { return table->UnboundMembers(); };
    return entry;
  }

 private:
  CodeEntry entry_;
  std::shared_ptr<FieldTable<P>> table_ = std::make_shared<FieldTable<P>>();
  std::function<void(Form<P>&)> on_open_;
  std::function<bool(Form<P>&, MessageSink&)> on_change_;
  std::function<FieldState(const Form<P>&)> state_;
  std::function<bool(const P&, MessageSink&)> precheck_;
};

}  // namespace zel

#endif  // ZEL_CORE_CODES_FIELD_TABLE_H_
