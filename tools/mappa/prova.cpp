// The map of the two trials in which a city is to be found: the board's map, with dark corners and
// a dark foot for the texts.
#include "ornamenti.h"
#include "tavole.h"

namespace mappa {

Canvas trialPicture(const World& world, int scale) {
  Canvas page = boardPage(world, scale);
  cairo_t* cr = page.cr();

  // The foot, higher at the right under the button.
  cairo_move_to(cr, -8, 524);
  cairo_curve_to(cr, 0, 538, 8, 544, 26, 544);
  cairo_line_to(cr, 716, 544);
  cairo_curve_to(cr, 740, 544, 728, 510, 750, 510);
  cairo_line_to(cr, 808, 510);
  cairo_line_to(cr, 808, 608);
  cairo_line_to(cr, -8, 608);
  cairo_close_path(cr);
  paintPlaque(page);

  // The name of a city may stand in the corner at the top left.
  cairo_move_to(cr, -8, -8);
  cairo_line_to(cr, 214, -8);
  cairo_curve_to(cr, 198, 6, 196, 22, 172, 22);
  cairo_line_to(cr, 40, 22);
  cairo_curve_to(cr, 16, 22, 10, 34, -8, 62);
  cairo_close_path(cr);
  paintPlaque(page);

  cairo_move_to(cr, 808, -8);
  cairo_line_to(cr, 700, -8);
  cairo_curve_to(cr, 712, 8, 722, 14, 744, 14);
  cairo_curve_to(cr, 772, 14, 786, 22, 808, 62);
  cairo_close_path(cr);
  paintPlaque(page);
  return page;
}

}  // namespace mappa
