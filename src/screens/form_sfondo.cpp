#include "screens/form_sfondo.h"

namespace girovia {

FormSfondo::FormSfondo(Ambiente& ambiente)
    : Form(ambiente.screen, "FormSfondo", 800, 600, 0x404040), a_(ambiente) {
  Row(Shape1, "Shape1", {0, 0, 800, 600},
      {.border = 0x660001, .borderWidth = 32, .filled = true, .fill = 0x660001});
  PlaceOnPlane();
}

void FormSfondo::PlaceOnPlane() {
  const auto plane = screen().planeSize();
  const int k = screen().scale();
  Resize((plane.width + k - 1) / k, (plane.height + k - 1) / k);
  MoveOnPlane(0, 0);
  // In the middle, on the device pixels where the forms stand.
  Shape1.Move({(plane.width - 800 * k) / 2 / double(k), (plane.height - 600 * k) / 2 / double(k),
               800, 600});
}

void FormSfondo::Form_Load() {
  Show();
  SuonoAsync("inno");
  servizi().schermi->MostraNonModale(Schermata::Splash);
}

}  // namespace girovia
