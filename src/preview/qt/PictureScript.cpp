#include "preview/qt/PictureScript.h"

namespace tintora {

/// A page that went elsewhere while it was read has no body, and nothing to show.
///
/// The engine calls for a frame long before the one in front of it is out, and goes on calling while that one is being
/// drawn, as long as nothing has changed since. So each frame here is a change: what listens to the wheel, which the
/// page doesn't see. A change is handed over once the one before is about to be drawn, and drawn once the one before
/// that has been taken off the engine's hands. So of five frames the first is out when the fifth is called for.
QString PictureScript(const QString& mark, int load, QPointF place, std::chrono::milliseconds longest) {
    return QStringLiteral(
               "(() => {"
               "  const say = words => console.info('%1' + words + ' %2');"
               "  const listen = () => {};"
               "  const change = frame => {"
               "    for (const event of ['wheel', 'touchstart']) {"
               "      if (frame % 2) addEventListener(event, listen, {passive: true});"
               "      else removeEventListener(event, listen);"
               "    }"
               "  };"
               "  const draw = frame => requestAnimationFrame(() => {"
               "    if (frame == 5) return say('painted');"
               "    change(frame);"
               "    draw(frame + 1);"
               "  });"
               "  let isPainting = false;"
               "  const paint = () => {"
               "    if (isPainting) return;"
               "    if (document instanceof HTMLDocument && !document.body) return say('nothing');"
               "    isPainting = true;"
               "    scrollTo({left: %3, top: %4, behavior: 'instant'});"
               "    draw(1);"
               "  };"
               "  if (document.readyState != 'loading') return paint();"
               "  addEventListener('DOMContentLoaded', paint);"
               "  setTimeout(paint, %5);"
               "})()")
        .arg(mark)
        .arg(load)
        .arg(place.x())
        .arg(place.y())
        .arg(longest.count());
}

}  // namespace tintora
