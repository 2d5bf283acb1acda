"""The shapes of which the weather icons are made, as SVG path data on a canvas of 128 x 128."""

import math


def circle_meeting(first, second):
    """The upper of the two points in which two circles (x, y, radius) meet."""
    (x0, y0, r0), (x1, y1, r1) = first, second
    distance = math.hypot(x1 - x0, y1 - y0)
    along = (r0 * r0 - r1 * r1 + distance * distance) / (2 * distance)
    across = math.sqrt(r0 * r0 - along * along)
    ux, uy = (x1 - x0) / distance, (y1 - y0) / distance
    points = [(x0 + along * ux + side * across * uy, y0 + along * uy - side * across * ux) for side in (1, -1)]
    return min(points, key=lambda point: point[1])


def cloud_bumps(x, y, width):
    """The three circles (x, y, radius) of a cloud, from left to right."""
    scale = width / 100
    return [(x + cx * scale, y + cy * scale, r * scale) for cx, cy, r in ((21, 43, 21), (47, 29, 29), (77, 41, 23))]


def cloud(x, y, width):
    """A cloud whose box begins at (x, y); it is 0.64 of its width high. Three bumps over a flat ground."""
    left, top, right = cloud_bumps(x, y, width)
    ground = y + 0.64 * width
    first, second = circle_meeting(left, top), circle_meeting(top, right)
    return (f"M{left[0]:.2f} {ground:.2f}"
            f"A{left[2]:.2f} {left[2]:.2f} 0 0 1 {first[0]:.2f} {first[1]:.2f}"
            f"A{top[2]:.2f} {top[2]:.2f} 0 0 1 {second[0]:.2f} {second[1]:.2f}"
            f"A{right[2]:.2f} {right[2]:.2f} 0 0 1 {right[0]:.2f} {ground:.2f}Z")


def rays(x, y, inner, outer, count, cloud_box=None):
    """Strokes around a centre; those that would touch the cloud are left out."""
    bumps = cloud_bumps(*cloud_box) if cloud_box else []
    parts = []
    for k in range(count):
        ux, uy = math.cos(2 * math.pi * k / count), math.sin(2 * math.pi * k / count)
        begin, end = ((x + r * ux, y + r * uy) for r in (inner, outer))
        if all(math.dist(point, bump[:2]) > bump[2] + 9 for bump in bumps for point in (begin, end)):
            parts.append(f"M{begin[0]:.2f} {begin[1]:.2f}L{end[0]:.2f} {end[1]:.2f}")
    return "".join(parts)


def streak(x, y, length):
    """A slanted stroke of falling water; (x, y) is its middle."""
    dx, dy = 0.16 * length, 0.5 * length
    return f"M{x + dx:.2f} {y - dy:.2f}L{x - dx:.2f} {y + dy:.2f}"


def flake(x, y, radius):
    """Six arms, each with a small fork."""
    parts = []
    for k in range(6):
        angle = math.pi / 6 + math.pi * k / 3
        tip = (x + radius * math.cos(angle), y + radius * math.sin(angle))
        fork = (x + 0.55 * radius * math.cos(angle), y + 0.55 * radius * math.sin(angle))
        parts.append(f"M{x:.2f} {y:.2f}L{tip[0]:.2f} {tip[1]:.2f}")
        for side in (-1, 1):
            end = angle + side * math.pi / 3.4
            parts.append(f"M{fork[0]:.2f} {fork[1]:.2f}"
                         f"L{fork[0] + 0.34 * radius * math.cos(end):.2f} {fork[1] + 0.34 * radius * math.sin(end):.2f}")
    return "".join(parts)


def bolt(x, y, size):
    """A flash; (x, y) is the middle of its upper edge."""
    points = ((3, 0), (-13, 27), (-2, 27), (-9, 50), (15, 18), (3, 18), (11, 0))
    return "M" + "L".join(f"{x + px * size:.2f} {y + py * size:.2f}" for px, py in points) + "Z"


def wave(x, y, width):
    """A stroke of fog."""
    quarter = width / 4
    return f"M{x:.2f} {y:.2f}q{quarter:.2f} -5 {2 * quarter:.2f} 0t{2 * quarter:.2f} 0"


def question_mark(x, y):
    """Without its dot; (x, y) is the middle of the hook."""
    return f"M{x - 9:.2f} {y - 3:.2f}a9.5 9.5 0 1 1 14 8.4q-5 3 -5 8.6"
