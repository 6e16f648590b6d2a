.pragma library

// CompressorHelper: the two abscissas of the compressor thumbnail's polyline.
//
// The thumbnail draws (0, 0), (xT, xT), (width, yC): a unity line up to the threshold, then the
// compressed part whose slope is the inverse ratio.

var defaultMinThreshold = -18
var defaultMaxThreshold = 18
var defaultThreshold = 0
var defaultInverseCompressionRatio = 0.25

function getXThreshold(threshold, maxThreshold, minThreshold, plotWidth) {
    return (threshold - minThreshold) * plotWidth / (maxThreshold - minThreshold)
}

function getYCompression(inverseCompressionRatio, xThreshold, plotWidth) {
    return inverseCompressionRatio * (plotWidth - xThreshold) + xThreshold
}
