"""Arithmetic on floating-point pictures of the whole Earth: blur, enlarge, mix, and the fields of the natural raster."""
import numpy as np
from PIL import Image

from chart import Chart

RIM = 1 / 8  # share of the width repeated at both sides while blurring, so that nothing shows at the date line


def gaussian(field, radius):
    """Blurs a (h, w) or (h, w, k) float field; wraps round in longitude, repeats the rows at the poles."""
    height, width = field.shape[:2]
    reach = int(np.ceil(3 * radius))
    kernel = np.exp(-.5 * (np.arange(-reach, reach + 1) / max(radius, 1e-6)) ** 2)
    kernel /= kernel.sum()
    rows = field[np.clip(np.arange(-reach, height + reach), 0, height - 1)]
    out = sum(k * rows[i:i + height] for i, k in enumerate(kernel))
    columns = out[:, np.arange(-reach, width + reach) % width]
    return sum(k * columns[:, i:i + width] for i, k in enumerate(kernel))


def resize(field, width, height):
    """Smooth enlargement of a float field without a seam at the date line."""
    rim = int(field.shape[1] * RIM)
    wide = np.concatenate([field[:, -rim:], field, field[:, :rim]], 1)
    big_rim = round(width * RIM)
    planes = wide[..., None] if wide.ndim == 2 else wide
    done = [np.asarray(Image.fromarray(planes[..., k].astype(np.float32)).resize((width + 2 * big_rim, height), Image.BICUBIC))
            for k in range(planes.shape[2])]
    out = np.stack(done, -1)[:, big_rim:big_rim + width]
    return out[..., 0] if field.ndim == 2 else out


def ramp(field, colours):
    stops = np.linspace(0, 1, len(colours))
    return np.stack([np.interp(field, stops, [c[k] for c in colours]) for k in range(3)], -1)


def mix(below, above, share):
    share = np.asarray(share, float)
    return below + (np.asarray(above, float) - below) * (share[..., None] if share.ndim == 2 else share)


def natural_fields(path, rings, borders):
    """(land colour, sea depth) of the 720x360 raster, each carried on over the shore: no blue on land, no sand at sea."""
    raster = np.asarray(Image.open(path).convert("RGB"), float)
    land = Chart(raster.shape[1], rings, borders).land()
    inland, offshore = land > .98, gaussian(land, 1.2) < .02
    colour = _carry_on(raster, inland)
    depth = _carry_on(raster.mean(-1), offshore)
    depth[:24] = depth[24]  # the raster's first rows are smeared
    low, high = np.percentile(depth[offshore], (3, 98))
    return colour, gaussian(np.clip((depth - low) / (high - low), 0, 1), 3)


def _carry_on(field, known):
    """Replaces what is not known by the weighted mean of known neighbours, from near to far."""
    out = field.astype(float).copy()
    todo = ~known
    for radius in (1, 2, 4, 8, 16, 40):
        weight = gaussian(known.astype(float), radius)
        values = gaussian(field * (known if field.ndim == 2 else known[..., None]), radius)
        found = todo & (weight > .05)
        out[found] = values[found] / (weight[found] if field.ndim == 2 else weight[found][:, None])
        todo &= ~found
    return out
