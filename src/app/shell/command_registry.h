// Commands whose dialogs and operations come from other parts of the
// program: the Generate entries and the Time<->Frequency switch. A menu entry
// is enabled only once its command is registered here, so the menus never
// offer a dialog that does not exist.
#ifndef ZEL_APP_SHELL_COMMAND_REGISTRY_H_
#define ZEL_APP_SHELL_COMMAND_REGISTRY_H_

#include <functional>
#include <map>

namespace zel::app {

class CMainFrame;

class CommandRegistry {
 public:
  // Runs the command; a Generate command typically opens its modal dialog,
  // whose OK makes the new document with frame.app().NewDocument(mode).
  using Handler = std::function<void(CMainFrame& frame)>;

  void Register(int id, Handler handler) { handlers_[id] = std::move(handler); }
  bool Has(int id) const { return handlers_.count(id) != 0; }
  // Runs the command of `id`; false when none is registered.
  bool Run(int id, CMainFrame& frame) const {
    const auto it = handlers_.find(id);
    if (it == handlers_.end()) return false;
    it->second(frame);
    return true;
  }

 private:
  std::map<int, Handler> handlers_;
};

// The one place where every dialog-backed command is registered
// (registered_commands.cc): each Generate dialog adds one line there.
void RegisterCommands(CommandRegistry& registry);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_COMMAND_REGISTRY_H_
