// The catalogue of video effects. An entry has a name for the user, a template of the effect's text, in which a
// value in square brackets is a place to be filled, and the variables that the user may set.
//
// A variable names its key, its label and tool tip, and how it is chosen: the control (none for a drop-down
// list), the limits, and the choices in `prop`, of which the first is the default. `selected` is what stands
// chosen, empty for the default.

const controls = {
    menu: 0,
    scrollbar: 1,
    colorchooser: 2,
    chromakey: 3,
    grayscale: 4,
    huenumber: 5
};

// Choices from one number to another in steps of 0.1.
function dump(min, max) {
    const rows = [];
    for (let tenth = Math.round(min * 10); tenth <= Math.round(max * 10); ++tenth) {
        const text = (tenth / 10).toFixed(1);
        rows.push({ name: text, value: text });
    }
    return rows;
}

const onepositive = dump(0.0, 1.0);
const onetoone = dump(-1.0, 1.0);
const threetothree = dump(-3.0, 3.0);

function choice(name, value) {
    return { name: name, value: String(value) };
}

function framesAmount() {
    return [
        choice(qsTranslate("VideoEffects", "Min"), 2),
        choice("4", 4),
        choice("8", 8),
        choice("16", 16),
        choice("32", 32),
        choice("64", 64),
        choice(qsTranslate("VideoEffects", "Max"), 129)
    ];
}

function variable(propname, displayname, proptip, more) {
    return Object.assign({
        propname: propname,
        displayname: displayname,
        proptip: proptip,
        selected: "",
        prop: []
    }, more);
}

// A list of choices with one of them chosen.
function listed(propname, displayname, proptip, prop, selected) {
    return variable(propname, displayname, proptip, { prop: prop, selected: selected || "" });
}

function scrolled(propname, displayname, proptip, min, max, more) {
    return variable(propname, displayname, proptip, Object.assign({
        control: controls.scrollbar,
        controlsize: 10,
        minvalue: min,
        maxvalue: max,
        multiplier: 1,
        prop: [choice(String(min), min), choice(String(max), max)]
    }, more));
}

function grey(propname, displayname, proptip, selected) {
    return scrolled(propname, displayname, proptip, 0, 255, {
        control: controls.grayscale,
        selected: selected
    });
}

function frames(propname, displayname, proptip, frameCount) {
    return variable(propname, displayname, proptip, {
        minvalue: 2,
        maxvalue: frameCount,
        prop: framesAmount()
    });
}

function normalize(frameCount) {
    return {
        comment: qsTranslate("VideoEffects", "Normalize"),
        filter: "normalize=blackpt=#000000:whitept=#ffffff:smoothing=[smoothing]:independence=1.0:strength=1.0",
        variables: [
            grey("blackpt", qsTranslate("VideoEffects", "Minimum"),
                 qsTranslate("VideoEffects", "The grey that the darkest point becomes"), "#000000"),
            grey("whitept", qsTranslate("VideoEffects", "Maximum"),
                 qsTranslate("VideoEffects", "The grey that the brightest point becomes"), "#ffffff"),
            frames("smoothing", qsTranslate("VideoEffects", "Smoothing"),
                   qsTranslate("VideoEffects", "Earlier frames that the range is taken from"), frameCount),
            listed("independence", qsTranslate("VideoEffects", "Independence"),
                   qsTranslate("VideoEffects", "How far the colour channels go their own ways"), onepositive, "1.0"),
            listed("strength", qsTranslate("VideoEffects", "Strength"),
                   qsTranslate("VideoEffects", "How much of the effect is applied"), onepositive, "1.0")
        ]
    };
}

function colorize() {
    return {
        comment: qsTranslate("VideoEffects", "Colorize"),
        filter: "colorize=hue=200:saturation=0.5:lightness=0.5:mix=1.0",
        variables: [
            scrolled("hue", qsTranslate("VideoEffects", "Hue"),
                     qsTranslate("VideoEffects", "The colour's place on the colour circle"), 0, 360,
                     { control: controls.huenumber, selected: "200" }),
            listed("saturation", qsTranslate("VideoEffects", "Saturation"),
                   qsTranslate("VideoEffects", "How strong the colour is"), onepositive, "0.5"),
            listed("lightness", qsTranslate("VideoEffects", "Lightness"),
                   qsTranslate("VideoEffects", "How light the colour is"), onepositive, "0.5"),
            listed("mix", qsTranslate("VideoEffects", "Mix"),
                   qsTranslate("VideoEffects", "How much of the picture's own brightness stays"), onepositive, "1.0")
        ]
    };
}

function antiflicker(frameCount) {
    return {
        comment: qsTranslate("VideoEffects", "Antiflicker"),
        filter: "deflicker=mode=[mode]:size=[size]",
        variables: [
            listed("mode", qsTranslate("VideoEffects", "Smoothing"),
                   qsTranslate("VideoEffects", "How the brightness of several frames becomes one"), [
                       choice(qsTranslate("VideoEffects", "Arithmetic mean"), "am"),
                       choice(qsTranslate("VideoEffects", "Geometric mean"), "gm"),
                       choice(qsTranslate("VideoEffects", "Harmonic mean"), "hm"),
                       choice(qsTranslate("VideoEffects", "Quadratic mean"), "qm"),
                       choice(qsTranslate("VideoEffects", "Cubic mean"), "cm"),
                       choice(qsTranslate("VideoEffects", "Power mean"), "pm"),
                       choice(qsTranslate("VideoEffects", "Median"), "median")
                   ]),
            frames("size", qsTranslate("VideoEffects", "Amount of frames"),
                   qsTranslate("VideoEffects", "Frames that are compared"), frameCount)
        ]
    };
}

function sharpen() {
    return {
        comment: qsTranslate("VideoEffects", "Sharpen"),
        filter: "cas=strength=[strength]",
        variables: [
            scrolled("strength", qsTranslate("VideoEffects", "Strength"),
                     qsTranslate("VideoEffects", "How much of the effect is applied"), 1, 100)
        ]
    };
}

function averageBlur() {
    return {
        comment: qsTranslate("VideoEffects", "Average Blur"),
        filter: "avgblur=sizeX=[sizeX]",
        variables: [
            scrolled("sizeX", qsTranslate("VideoEffects", "Radius"),
                     qsTranslate("VideoEffects", "How far the blur reaches, in pixels"), 1, 50)
        ]
    };
}

function gaussianBlur() {
    return {
        comment: qsTranslate("VideoEffects", "Gaussian Blur"),
        filter: "gblur=sigma=0.5:steps=1",
        variables: [
            listed("sigma", qsTranslate("VideoEffects", "Radius"),
                   qsTranslate("VideoEffects", "How far the blur reaches, in pixels"), onepositive, "0.5"),
            scrolled("steps", qsTranslate("VideoEffects", "Steps"),
                     qsTranslate("VideoEffects", "How often the blur is repeated"), 1, 10)
        ]
    };
}

function spatialSmoothing() {
    return {
        comment: qsTranslate("VideoEffects", "Spatial Smoothing"),
        filter: "bilateral=sigmaS=[sigmaS]:sigmaR=[sigmaR]:",
        variables: [
            scrolled("sigmaS", qsTranslate("VideoEffects", "Spatial weight"),
                     qsTranslate("VideoEffects", "How far the smoothing reaches"), 0, 1000),
            scrolled("sigmaR", qsTranslate("VideoEffects", "Range weight"),
                     qsTranslate("VideoEffects", "How large a difference is smoothed away"), 0, 100)
        ]
    };
}

// The entries in the order of the dialog, for a film of that many frames.
function effects(frameCount) {
    return [
        normalize(frameCount),
        colorize(),
        antiflicker(frameCount),
        sharpen(),
        averageBlur(),
        gaussianBlur(),
        spatialSmoothing()
    ];
}
