// Registry entry of the Newmark & Hall spectrum: the dialog DLG_NEWMARK and
// its command-line parameters. It has no period grid of its own.
#include <cstddef>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/newmark_hall.h"

namespace zel {

CodeEntry NewmarkHallEntry() {
  using P = NewmarkHallParams;
  CodeBuilder<P> code("newmark-hall", "Newmark & Hall", "Newmark & Hall",
                      kNewmarkHallTitle);
  code.fields()
      .Number("scale", "Scale Factor :", &P::scale)
      .Choice("type", "Spectrum type:", &P::type, {"ACCEL", "VELO", "DISP"},
              {"accel", "velo", "disp"})
      .List("damping", "Damping Ratio", &P::damping, kNewmarkDampingCapacity,
            kNoMoreDampingMessage);
  // A ratio the table has no factors for is refused as it is inserted.
  code.OnChange([](Form<P>& f, MessageSink& messages) {
    if (!f.Is(&P::damping)) return true;
    std::vector<double> damping = f.Read().damping;
    for (std::size_t i = 0; i < damping.size(); ++i) {
      if (!CheckNewmarkDamping(damping[i], messages)) {
        damping.erase(damping.begin() + static_cast<std::ptrdiff_t>(i));
        f.Show(&P::damping, damping);
        return false;
      }
    }
    return true;
  });
  return code.Build(GenerateNewmarkHall);
}

}  // namespace zel
