import QtQuick

// The language of the interface, from the next start on, and the button that forgets all settings.
Column {
    id: group

    readonly property var locales: ["ru_RU", "en_US", ""]
    readonly property string atStart: storedLocale()
    property string chosen: atStart

    function storedLocale() {
        const stored = MainWindow.getSetting(LanguageLocaleKey, "");
        return locales.includes(stored) ? stored : "";
    }

    function choose(locale) {
        chosen = locale;
        if (locale === "")
            MainWindow.useSystemLocale();
        else
            MainWindow.localeName = locale;
    }

    spacing: Theme.padding

    PropertiesRow {
        id: language

        width: parent.width
        text: qsTranslate("PropertiesDialog", "Language")

        ChoiceRow {
            objectName: "language"
            width: parent.width
            label: language.text
            toolTip: qsTranslate("PropertiesDialog", "Language of the interface")
            model: [qsTranslate("PropertiesDialog", "Russian"), qsTranslate("PropertiesDialog", "English"),
                    qsTranslate("PropertiesDialog", "Auto")]
            currentIndex: group.locales.indexOf(group.chosen)
            onChosen: index => group.choose(group.locales[index])
        }

        ChangesWillTakeEffect {
            objectName: "languageNote"
            width: parent.width
            visible: group.chosen !== group.atStart
        }
    }

    PropertiesRow {
        width: parent.width

        DialogButton {
            id: clear

            objectName: "clearSettings"
            width: Math.min(implicitWidth, parent.width)
            icon: "svgicons/clear.svg"
            text: qsTranslate("PropertiesDialog", "Clear Settings")
            toolTip: qsTranslate("PropertiesDialog",
                                 "Warning. Will remove all settings, including recent projects list")
            onClicked: {
                MainWindow.clearSettings();
                clearNote.visible = true;
            }
        }

        ChangesWillTakeEffect {
            id: clearNote

            objectName: "clearNote"
            width: parent.width
            visible: false
        }
    }
}
