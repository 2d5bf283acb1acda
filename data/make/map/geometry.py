"""Land polygons and inner borders out of a TopoJSON file, ready to draw on an equirectangular map.

Longitudes and latitudes are degrees, east and north positive. The package's rings run across the date line and
Antarctica's runs right round the pole, so every ring is made continuous first ("unwrapped") and then drawn as often as
copies of it, a whole turn apart, reach into -180..180.
"""
import collections
import json


def _decode_arcs(topology):
    (scale_x, scale_y) = topology["transform"]["scale"]
    (move_x, move_y) = topology["transform"]["translate"]
    arcs = []
    for deltas in topology["arcs"]:
        x = y = 0
        points = []
        for dx, dy in deltas:
            x += dx
            y += dy
            points.append((x * scale_x + move_x, y * scale_y + move_y))
        arcs.append(points)
    return arcs


def _polygons(geometry):
    if geometry["type"] == "Polygon":
        return [geometry["arcs"]]
    return geometry["arcs"] if geometry["type"] == "MultiPolygon" else []


def _stitch(arcs, indices):
    ring = []
    for index in indices:
        points = arcs[index] if index >= 0 else arcs[~index][::-1]
        ring += points[1:] if ring else points
    return ring


def _unwrap(points):
    """Makes longitude continuous: no step is longer than half a turn."""
    out = [points[0]]
    for x, y in points[1:]:
        x += 360 * round((out[-1][0] - x) / 360)
        out.append((x, y))
    return out


def _close_over_pole(ring):
    """A ring with a net turn encloses a pole: run it along that pole's edge of the map."""
    if abs(ring[-1][0] - ring[0][0]) <= 180:
        return ring
    pole = -90 if sum(y for _, y in ring) < 0 else 90
    return ring + [(ring[-1][0], pole), (ring[0][0], pole)]


def copies(points):
    """The points and their copies a whole turn apart that reach into -180..180."""
    low = min(x for x, _ in points)
    high = max(x for x, _ in points)
    return [[(x + turn, y) for x, y in points]
            for turn in (-720, -360, 0, 360, 720) if high + turn > -180 and low + turn < 180]


def load(path):
    """Returns (rings, borders): closed rings of land, and open lines between two countries."""
    with open(path, encoding="utf-8") as file:
        topology = json.load(file)
    arcs = _decode_arcs(topology)
    countries = topology["objects"]["countries"]["geometries"]
    rings = []
    uses = collections.Counter()
    for country in countries:
        own = set()
        for polygon in _polygons(country):
            for indices in polygon:
                rings += copies(_close_over_pole(_unwrap(_stitch(arcs, indices))))
                own.update(i if i >= 0 else ~i for i in indices)
        uses.update(own)
    # an arc that two countries share lies between them; the others are coast
    borders = [line for index, count in uses.items() if count > 1 for line in copies(_unwrap(arcs[index]))]
    return rings, borders
