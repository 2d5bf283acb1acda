"""Masks of land, borders and lakes on an equirectangular picture of one size."""
import cairo
import numpy as np

from lakes import LAKES


class Chart:
    """Masks of one map size, 0..1, drawn from the geometry."""

    def __init__(self, width, rings, borders):
        self.width, self.height = width, width // 2
        self._rings, self._borders = rings, borders

    def _draw(self, paint):
        surface = cairo.ImageSurface(cairo.FORMAT_A8, self.width, self.height)
        context = cairo.Context(surface)
        context.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        paint(context)
        surface.flush()
        rows = np.frombuffer(surface.get_data(), np.uint8).reshape(self.height, surface.get_stride())
        return rows[:, :self.width].astype(float) / 255

    def _point(self, longitude, latitude):
        return (longitude + 180) / 360 * self.width, (90 - latitude) / 180 * self.height

    def _trace(self, context, points):
        for x, y in points:
            context.line_to(*self._point(x, y))

    def land(self):
        def paint(context):
            # a hair of stroke closes the light seams between neighbouring countries
            context.set_line_width(.35)
            for ring in self._rings:
                context.new_path()
                self._trace(context, ring)
                context.close_path()
                context.fill_preserve()
                context.stroke()
        return self._draw(paint)

    def borders(self, line_width):
        def paint(context):
            context.set_line_width(line_width)
            for line in self._borders:
                self._trace(context, line)
                context.stroke()
        return self._draw(paint)

    def lakes(self):
        def paint(context):
            for outline in LAKES.values():
                points = [self._point(*p) for p in outline]
                around = [points[-1]] + points + points[:2]
                context.move_to(*points[0])
                for a, b, c, d in zip(around, around[1:], around[2:], around[3:]):  # rounded through every point
                    context.curve_to(b[0] + (c[0] - a[0]) / 6, b[1] + (c[1] - a[1]) / 6,
                                     c[0] - (d[0] - b[0]) / 6, c[1] - (d[1] - b[1]) / 6, *c)
                context.fill()
        return self._draw(paint)
