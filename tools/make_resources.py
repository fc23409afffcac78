#!/usr/bin/env python3
"""Make the pictures and sounds in resources/.

Usage:
    python3 tools/make_resources.py [OUTDIR]

Writes, into OUTDIR (default: resources/ beside this tools/ folder):
    target.gif    62x62 bull's-eye target, at rest
    target2.gif   the same target lit, shown for the one-second blink
    target@2x.gif, target2@2x.gif
                  the same at 124x124, for screens scaled by 1.5 or 2
    claves.wav    knock of two wooden claves: the drop found no action
    beep.wav      soft beep for desktops without a bell
    velmora.png   256x256 application icon
    velmora.svg   the same icon as a scalable picture

Python standard library only, and deterministic: every run writes the same bytes,
so a changed resource in a diff always means a changed drawing or sound here.
"""

import math
import os
import struct
import sys
import zlib

# ---------------------------------------------------------------------------
# Drawing helpers

def clamp01(v):
    return 0.0 if v < 0.0 else 1.0 if v > 1.0 else v


def lerp(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def hexrgb(s):
    return (int(s[1:3], 16), int(s[3:5], 16), int(s[5:7], 16))


def disc_cover(d, radius):
    """Share of a pixel at distance d from the centre that lies inside radius.

    A one-pixel linear ramp across the edge: cheap, exact enough for
    concentric circles, and free of the noise of random supersampling.
    """
    return clamp01(radius - d + 0.5)


# ---------------------------------------------------------------------------
# The target: rings listed from the outside in, as (outer radius, colour).
# Both pictures use the same radii so that the blink does not make it jump.

TARGET_SIZE = 62
TARGET_RADII = (30.4, 29.2, 24.3, 19.3, 14.3, 9.3, 4.8)

REST_COLOURS = ("#4a1010",  # thin dark rim that holds the edge on any background
                "#d6262b", "#f7f5f0", "#d6262b", "#f7f5f0", "#d6262b",
                "#1c1c24")  # dark centre
LIT_COLOURS = ("#9a6a00",
               "#ffd60a", "#4fe03a", "#ffd60a", "#4fe03a", "#ffd60a",
               "#fffbe6")  # white-hot centre

# Fringe pixels are blended with the default light window colour of Qt,
# because GIF transparency is all or nothing.
WINDOW_GREY = hexrgb("#efefef")


def render_target(colours, glow, scale):
    """Return rows of (r, g, b) or None (transparent) for the target, 62x62 times scale.

    The rings are drawn anew at each scale, so that their edges stay one pixel soft.
    """
    size = TARGET_SIZE * scale
    c = size / 2.0
    radii = [r * scale for r in TARGET_RADII]
    cols = [hexrgb(x) for x in colours]
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            d = math.hypot(x + 0.5 - c, y + 0.5 - c)
            outer = disc_cover(d, radii[0])
            if outer < 0.5:
                row.append(None)
                continue
            col = cols[0]
            for radius, ring in zip(radii[1:], cols[1:]):
                col = lerp(col, ring, disc_cover(d, radius))
            if glow:
                # The lit picture brightens towards the middle so that it reads
                # as light coming from the centre, not just other paint.
                t = clamp01(1.0 - d / radii[1])
                col = lerp(col, (255, 255, 240), 0.35 * t * t)
            col = lerp(WINDOW_GREY, col, outer)
            row.append(col)
        rows.append(row)
    return rows


def palette_of(rows):
    """Reduce the picture to at most 255 colours, index 0 kept for transparency.

    Colours are rounded to a grid that grows coarser only as far as needed;
    the palette is ordered by frequency, then by value, to stay deterministic.
    """
    step = 1
    while True:
        def snap(col):
            return tuple(min(255, int(round(v / step)) * step) for v in col)
        counts = {}
        for row in rows:
            for col in row:
                if col is not None:
                    k = snap(col)
                    counts[k] = counts.get(k, 0) + 1
        if len(counts) <= 255:
            break
        step += 1
    order = sorted(counts, key=lambda k: (-counts[k], k))
    index = {k: i + 1 for i, k in enumerate(order)}
    pixels = []
    for row in rows:
        for col in row:
            pixels.append(0 if col is None else index[snap(col)])
    return [(0, 0, 0)] + order, pixels


# ---------------------------------------------------------------------------
# GIF writer

def lzw_encode(pixels, min_code_size):
    """Variable-length LZW as GIF requires, packed least significant bit first."""
    clear = 1 << min_code_size
    eoi = clear + 1
    out = bytearray()
    acc = 0
    nbits = 0

    def emit(code, width):
        nonlocal acc, nbits
        acc |= code << nbits
        nbits += width
        while nbits >= 8:
            out.append(acc & 0xFF)
            acc >>= 8
            nbits -= 8

    def fresh():
        return {(i,): i for i in range(clear)}, eoi + 1, min_code_size + 1

    table, next_code, width = fresh()
    emit(clear, width)
    prefix = ()
    for p in pixels:
        cand = prefix + (p,)
        if cand in table:
            prefix = cand
            continue
        emit(table[prefix], width)
        if next_code < 4096:
            table[cand] = next_code
            # The decoder widens its codes one step later than it adds the
            # entry, so widen when the new code no longer fits.
            if next_code == (1 << width) and width < 12:
                width += 1
            next_code += 1
        else:
            # Table full: start again rather than keep a stale dictionary.
            emit(clear, width)
            table, next_code, width = fresh()
        prefix = (p,)
    if prefix:
        emit(table[prefix], width)
    emit(eoi, width)
    if nbits:
        out.append(acc & 0xFF)
    return bytes(out)


def gif_bytes(width, height, palette, pixels, transparent_index=0):
    bits = 1
    while (1 << bits) < len(palette):
        bits += 1
    table_size = 1 << bits
    pal = list(palette) + [(0, 0, 0)] * (table_size - len(palette))
    data = bytearray(b"GIF89a")
    # Logical screen: global colour table present, 8-bit colour resolution.
    data += struct.pack("<HHBBB", width, height, 0x80 | 0x70 | (bits - 1), 0, 0)
    for r, g, b in pal:
        data += bytes((int(r), int(g), int(b)))
    # Graphic control extension: only to mark the transparent index.
    data += struct.pack("<BBBBHBB", 0x21, 0xF9, 4, 0x01, 0, transparent_index, 0)
    data += struct.pack("<BHHHHB", 0x2C, 0, 0, width, height, 0)
    min_code = max(2, bits)
    data.append(min_code)
    lzw = lzw_encode(pixels, min_code)
    for i in range(0, len(lzw), 255):
        chunk = lzw[i:i + 255]
        data.append(len(chunk))
        data += chunk
    data.append(0)
    data.append(0x3B)
    return bytes(data)


def make_target_gif(colours, glow, scale=1):
    rows = render_target(colours, glow, scale)
    palette, pixels = palette_of(rows)
    return gif_bytes(TARGET_SIZE * scale, TARGET_SIZE * scale, palette, pixels)


# ---------------------------------------------------------------------------
# WAV writer

RATE = 44100


def wav_bytes(samples):
    """16-bit mono PCM at 44100 Hz; samples are floats in -1..1."""
    pcm = bytearray()
    for s in samples:
        v = int(round(s * 32767.0))
        pcm += struct.pack("<h", max(-32768, min(32767, v)))
    fmt = struct.pack("<HHIIHH", 1, 1, RATE, RATE * 2, 2, 16)
    body = (b"WAVE" + b"fmt " + struct.pack("<I", len(fmt)) + fmt
            + b"data" + struct.pack("<I", len(pcm)) + bytes(pcm))
    return b"RIFF" + struct.pack("<I", len(body)) + body


def normalise(samples, peak_dbfs):
    peak = max(abs(s) for s in samples)
    gain = 10.0 ** (peak_dbfs / 20.0) / peak
    return [s * gain for s in samples]


def fade(samples, n_in, n_out):
    """Raised-cosine ends so that the sound starts and stops without a click."""
    out = list(samples)
    n = len(out)
    for i in range(n_in):
        out[i] *= 0.5 - 0.5 * math.cos(math.pi * i / n_in)
    for i in range(n_out):
        out[n - 1 - i] *= 0.5 - 0.5 * math.cos(math.pi * i / n_out)
    return out


def claves_samples():
    """Two hardwood sticks: a short woody click, then a ringing mode that dies fast."""
    n = int(RATE * 0.150)
    seed = 0x1234567
    out = []
    for i in range(n):
        t = i / RATE
        # Fixed LCG, not random: the noise must be the same on every run.
        seed = (seed * 1103515245 + 12345) & 0x7FFFFFFF
        noise = seed / 0x3FFFFFFF - 1.0
        main = math.sin(2 * math.pi * 2350.0 * t) * math.exp(-t / 0.030)
        # Inharmonic upper partial of a bar, weaker and shorter.
        upper = 0.28 * math.sin(2 * math.pi * 6290.0 * t + 0.7) * math.exp(-t / 0.010)
        # Low body thump gives the knock its wooden weight.
        body = 0.18 * math.sin(2 * math.pi * 880.0 * t) * math.exp(-t / 0.012)
        click = 0.35 * noise * math.exp(-t / 0.0015)
        out.append(main + upper + body + click)
    # 0.2 ms rise keeps the attack sharp yet not a DC step; 20 ms tail ends at zero.
    out = fade(out, int(RATE * 0.0002), int(RATE * 0.020))
    return normalise(out, -3.0)


def beep_samples():
    n = int(RATE * 0.120)
    out = [math.sin(2 * math.pi * 880.0 * i / RATE) for i in range(n)]
    out = fade(out, int(RATE * 0.005), int(RATE * 0.005))
    # Soft: well below full scale, so it never startles.
    return normalise(out, -12.0)


# ---------------------------------------------------------------------------
# Icon: a target on a rounded tile, drawn with real alpha.

ICON = 256
TILE = (16.0, 12.0, 240.0, 236.0)  # left, top, right, bottom
TILE_RADIUS = 52.0
TILE_TOP = hexrgb("#3b5683")
TILE_BOTTOM = hexrgb("#1d2a45")
ICON_RADII = (96.0, 92.0, 77.0, 62.0, 47.0, 32.0, 16.0)
ICON_COLOURS = ("#4a1010", "#d6262b", "#f7f5f0", "#d6262b", "#f7f5f0", "#d6262b",
                "#1c1c24")


def rounded_box_distance(x, y, box, radius):
    """Signed distance to a rounded rectangle: negative inside."""
    l, t, r, b = box
    cx, cy = (l + r) / 2.0, (t + b) / 2.0
    hx, hy = (r - l) / 2.0 - radius, (b - t) / 2.0 - radius
    qx, qy = abs(x - cx) - hx, abs(y - cy) - hy
    outside = math.hypot(max(qx, 0.0), max(qy, 0.0))
    return outside + min(max(qx, qy), 0.0) - radius


def over(dst, src, alpha):
    """Porter-Duff 'over' with straight alpha; dst is (r, g, b, a)."""
    dr, dg, db, da = dst
    oa = alpha + da * (1.0 - alpha)
    if oa <= 0.0:
        return (0.0, 0.0, 0.0, 0.0)
    k = da * (1.0 - alpha)
    return ((src[0] * alpha + dr * k) / oa,
            (src[1] * alpha + dg * k) / oa,
            (src[2] * alpha + db * k) / oa,
            oa)


def render_icon():
    cols = [hexrgb(x) for x in ICON_COLOURS]
    cx, cy = (TILE[0] + TILE[2]) / 2.0, (TILE[1] + TILE[3]) / 2.0
    raw = bytearray()
    for y in range(ICON):
        raw.append(0)  # PNG filter type: none
        for x in range(ICON):
            px, py = x + 0.5, y + 0.5
            pix = (0.0, 0.0, 0.0, 0.0)
            # Soft shadow under the tile so it stands off a light desktop.
            sd = rounded_box_distance(px, py - 5.0, TILE, TILE_RADIUS)
            pix = over(pix, (0, 0, 0), 0.35 * clamp01(0.5 - sd / 8.0))
            # Tile with a top-to-bottom gradient and a faint lighter edge.
            sd = rounded_box_distance(px, py, TILE, TILE_RADIUS)
            tile_a = clamp01(0.5 - sd)
            if tile_a > 0.0:
                g = clamp01((py - TILE[1]) / (TILE[3] - TILE[1]))
                col = lerp(TILE_TOP, TILE_BOTTOM, g)
                col = lerp(col, (255, 255, 255), 0.18 * clamp01(1.0 - abs(sd + 1.5) / 1.5))
                pix = over(pix, col, tile_a)
            # Shadow of the target on the tile.
            d = math.hypot(px - cx, py - cy - 4.0)
            pix = over(pix, (0, 0, 0), 0.30 * clamp01((ICON_RADII[0] + 3.0 - d) / 6.0))
            # The target itself, rings from the outside in.
            d = math.hypot(px - cx, py - cy)
            a = disc_cover(d, ICON_RADII[0])
            if a > 0.0:
                col = cols[0]
                for radius, ring in zip(ICON_RADII[1:], cols[1:]):
                    col = lerp(col, ring, disc_cover(d, radius))
                # Light from the upper left gives the flat rings a little body.
                shade = ((cx - px) + (cy - py)) / (2.0 * ICON_RADII[0])
                col = lerp(col, (255, 255, 255), 0.12 * clamp01(shade)) if shade > 0 \
                    else lerp(col, (0, 0, 0), 0.15 * clamp01(-shade))
                pix = over(pix, col, a)
            r, g_, b, al = pix
            raw += bytes((int(round(r)), int(round(g_)), int(round(b)),
                          int(round(al * 255.0))))
    return bytes(raw)


def png_bytes(width, height, raw_rgba_rows):
    def chunk(kind, payload):
        return (struct.pack(">I", len(payload)) + kind + payload
                + struct.pack(">I", zlib.crc32(kind + payload) & 0xFFFFFFFF))
    ihdr = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", ihdr)
            + chunk(b"IDAT", zlib.compress(raw_rgba_rows, 9)) + chunk(b"IEND", b""))


def icon_svg():
    l, t, r, b = TILE
    cx, cy = (l + r) / 2.0, (t + b) / 2.0
    lines = [
        '<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 256 256">',
        '  <defs>',
        '    <linearGradient id="tile" x1="0" y1="0" x2="0" y2="1">',
        '      <stop offset="0" stop-color="#3b5683"/>',
        '      <stop offset="1" stop-color="#1d2a45"/>',
        '    </linearGradient>',
        '    <filter id="soft" x="-20%" y="-20%" width="140%" height="140%">',
        '      <feGaussianBlur stdDeviation="3"/>',
        '    </filter>',
        '  </defs>',
        '  <rect x="%g" y="%g" width="%g" height="%g" rx="%g" fill="#000" opacity="0.3" filter="url(#soft)"/>'
        % (l, t + 5, r - l, b - t, TILE_RADIUS),
        '  <rect x="%g" y="%g" width="%g" height="%g" rx="%g" fill="url(#tile)"/>'
        % (l, t, r - l, b - t, TILE_RADIUS),
        '  <circle cx="%g" cy="%g" r="%g" fill="#000" opacity="0.3" filter="url(#soft)"/>'
        % (cx, cy + 4, ICON_RADII[0]),
    ]
    for radius, colour in zip(ICON_RADII, ICON_COLOURS):
        lines.append('  <circle cx="%g" cy="%g" r="%g" fill="%s"/>' % (cx, cy, radius, colour))
    lines.append('</svg>')
    return ("\n".join(lines) + "\n").encode("ascii")


# ---------------------------------------------------------------------------

def main(argv):
    if len(argv) > 2:
        sys.stderr.write(__doc__)
        return 2
    here = os.path.dirname(os.path.abspath(__file__))
    outdir = argv[1] if len(argv) == 2 else os.path.join(os.path.dirname(here), "resources")
    os.makedirs(outdir, exist_ok=True)
    files = {
        "target.gif": make_target_gif(REST_COLOURS, glow=False),
        "target2.gif": make_target_gif(LIT_COLOURS, glow=True),
        "target@2x.gif": make_target_gif(REST_COLOURS, glow=False, scale=2),
        "target2@2x.gif": make_target_gif(LIT_COLOURS, glow=True, scale=2),
        "claves.wav": wav_bytes(claves_samples()),
        "beep.wav": wav_bytes(beep_samples()),
        "velmora.png": png_bytes(ICON, ICON, render_icon()),
        "velmora.svg": icon_svg(),
    }
    for name in sorted(files):
        path = os.path.join(outdir, name)
        with open(path, "wb") as f:
            f.write(files[name])
        print("%-14s %6d bytes" % (name, len(files[name])))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
