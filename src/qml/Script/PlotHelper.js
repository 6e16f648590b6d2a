.pragma library

// PlotHelper: strokes and fills of point lists on a 2D canvas context.
//
// Points are objects with x and y. The dashed line keeps only whole dashes: a last dash that
// would run past the end of the line is dropped. segmentsIntersect() tests the upper bound of
// r but not of s, so a segment CD that would meet AB only beyond D still counts; the curve
// editors rely on that.

function drawDashedLine(ctx, x1, y1, x2, y2, dashWidth, spacing, lineThickness, color) {
    const dx = x2 - x1
    const dy = y2 - y1
    if (dx === 0 && dy === 0)
        return
    ctx.save()
    ctx.lineWidth = lineThickness
    ctx.strokeStyle = color
    ctx.beginPath()
    if (Math.abs(dx) > Math.abs(dy)) {
        // y = m x + q, walked along x from the left end.
        const m = dy / dx
        const q = y1 - m * x1
        const left = dx > 0 ? x1 : x2
        const right = dx > 0 ? x2 : x1
        for (let x = left; x + dashWidth < right; x += spacing) {
            ctx.moveTo(x, m * x + q)
            ctx.lineTo(x + dashWidth, m * (x + dashWidth) + q)
        }
    } else {
        // x = n y + r, walked along y from the upper end.
        const n = dx / dy
        const r = x1 - n * y1
        const top = dy > 0 ? y1 : y2
        const bottom = dy > 0 ? y2 : y1
        for (let y = top; y + dashWidth < bottom; y += spacing) {
            ctx.moveTo(n * y + r, y)
            ctx.lineTo(n * (y + dashWidth) + r, y + dashWidth)
        }
    }
    ctx.stroke()
    ctx.restore()
}

function drawDottedLine(ctx, x1, y1, x2, y2, spacing, lineThickness, color) {
    drawDashedLine(ctx, x1, y1, x2, y2, lineThickness, spacing, lineThickness, color)
}

function drawLine(ctx, x1, y1, x2, y2, lineThickness, color) {
    ctx.save()
    ctx.lineWidth = lineThickness
    ctx.strokeStyle = color
    ctx.beginPath()
    ctx.moveTo(x1, y1)
    ctx.lineTo(x2, y2)
    ctx.stroke()
    ctx.restore()
}

function drawPolyline(ctx, points, lineThickness, color) {
    if (!points || points.length < 2)
        return
    ctx.save()
    ctx.lineWidth = lineThickness
    ctx.strokeStyle = color
    ctx.beginPath()
    ctx.moveTo(points[0].x, points[0].y)
    for (let i = 1; i < points.length; ++i)
        ctx.lineTo(points[i].x, points[i].y)
    ctx.stroke()
    ctx.restore()
}

function drawFillPath(ctx, points, color) {
    if (!points || points.length < 3)
        return
    ctx.save()
    ctx.fillStyle = color
    ctx.beginPath()
    ctx.moveTo(points[0].x, points[0].y)
    for (let i = 0; i < points.length; ++i)
        ctx.lineTo(points[i].x, points[i].y)
    ctx.closePath()
    ctx.fill()
    ctx.restore()
}

// A copy of the point with every NaN coordinate replaced by 0.
function checkAndReplaceNaN(point) {
    return {
        "x": isNaN(point.x) ? 0 : point.x,
        "y": isNaN(point.y) ? 0 : point.y
    }
}

function shiftedPoints(points, origin) {
    const ox = origin ? origin.x : 0
    const oy = origin ? origin.y : 0
    const result = []
    for (let i = 0; i < points.length; ++i)
        result.push(checkAndReplaceNaN({ "x": points[i].x - ox, "y": points[i].y - oy }))
    return result
}

// Each line record carries linePoints, origin, lineThickness and lineColor.
function strokePolylines(ctx, lines, enableDebug) {
    if (!lines)
        return
    for (let l = 0; l < lines.length; ++l) {
        const line = lines[l]
        if (!line || !line.linePoints || line.linePoints.length < 2)
            continue
        const points = shiftedPoints(line.linePoints, line.origin)
        ctx.save()
        ctx.lineWidth = line.lineThickness
        ctx.strokeStyle = line.lineColor
        ctx.beginPath()
        ctx.moveTo(points[0].x, points[0].y)
        for (let i = 1; i < points.length; ++i) {
            if (enableDebug)
                console.log("drawing line from (" + points[i - 1].x + "," + points[i - 1].y
                            + ") to (" + points[i].x + "," + points[i].y + ")")
            ctx.lineTo(points[i].x, points[i].y)
        }
        ctx.stroke()
        ctx.restore()
    }
}

// Each line record carries fillPoints, origin and fillColor.
function fillPolylines(ctx, lines, enableDebug) {
    if (!lines)
        return
    for (let l = 0; l < lines.length; ++l) {
        const line = lines[l]
        if (!line || !line.fillPoints || line.fillPoints.length < 3)
            continue
        const points = shiftedPoints(line.fillPoints, line.origin)
        ctx.save()
        ctx.fillStyle = line.fillColor
        ctx.beginPath()
        ctx.moveTo(points[0].x, points[0].y)
        for (let i = 1; i < points.length; ++i) {
            if (enableDebug)
                console.log("drawing fill line from (" + points[i - 1].x + "," + points[i - 1].y
                            + ") to (" + points[i].x + "," + points[i].y + ")")
            ctx.lineTo(points[i].x, points[i].y)
        }
        ctx.closePath()
        ctx.fill()
        ctx.restore()
    }
}

// Adds a closed rounded rectangle to the current path, clockwise from the top side. The caller
// begins the path.
function roundRect(ctx, x, y, w, h, radius) {
    let r = radius
    if (w < 2 * r || h < 2 * r)
        r = Math.min(w, h) / 2
    ctx.moveTo(x + r, y)
    ctx.arcTo(x + w, y, x + w, y + h, r)
    ctx.arcTo(x + w, y + h, x, y + h, r)
    ctx.arcTo(x, y + h, x, y, r)
    ctx.arcTo(x, y, x + w, y, r)
    ctx.closePath()
}

function roundRectFromRect(ctx, rect, radius) {
    roundRect(ctx, rect.x, rect.y, rect.width, rect.height, radius)
}

// A rounded trapezoid: dy raises the top of the right side and lowers its bottom, dx widens the
// bottom side to both sides. Begins its own path.
function roundTrapezoid(ctx, x, y, w, h, radius, dx, dy) {
    let r = radius
    if (w < 2 * r)
        r = w / 2
    if (h < 2 * r)
        r = h / 2
    const topLeft = { "x": x, "y": y }
    const topRight = { "x": x + w, "y": y - dy }
    const bottomRight = { "x": x + w + dx, "y": y + h + dy }
    const bottomLeft = { "x": x - dx, "y": y + h }
    ctx.beginPath()
    ctx.moveTo((topLeft.x + topRight.x) / 2, (topLeft.y + topRight.y) / 2)
    ctx.arcTo(topRight.x, topRight.y, bottomRight.x, bottomRight.y, r)
    ctx.arcTo(bottomRight.x, bottomRight.y, bottomLeft.x, bottomLeft.y, r)
    ctx.arcTo(bottomLeft.x, bottomLeft.y, topLeft.x, topLeft.y, r)
    ctx.arcTo(topLeft.x, topLeft.y, topRight.x, topRight.y, r)
    ctx.closePath()
}

function segmentsIntersect(A, B, C, D) {
    const d = (B.x - A.x) * (D.y - C.y) - (B.y - A.y) * (D.x - C.x)
    if (d === 0)
        return false
    const r = ((A.y - C.y) * (D.x - C.x) - (A.x - C.x) * (D.y - C.y)) / d
    const s = ((A.y - C.y) * (B.x - A.x) - (A.x - C.x) * (B.y - A.y)) / d
    return r >= 0 && r <= 1 && s >= 0 && r <= 1
}
