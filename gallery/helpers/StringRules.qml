import QtQuick
import TambleClient.Control 1.0

/*! The rules of the string validator, one of which judges the text. */
Column {
    id: root

    readonly property var rules: [
        { name: qsTr("Any"), rule: RStringRuleValidatorRule.RULE_ANY },
        { name: qsTr("ASCII"), rule: RStringRuleValidatorRule.RULE_ASCII },
        { name: qsTr("Alphanumeric"), rule: RStringRuleValidatorRule.RULE_ALPHANUMERIC },
        { name: qsTr("Name"), rule: RStringRuleValidatorRule.RULE_NAME },
        { name: qsTr("File name"), rule: RStringRuleValidatorRule.RULE_FILE_NAME },
        { name: qsTr("DNS name"), rule: RStringRuleValidatorRule.RULE_DNS_NAME },
        { name: qsTr("DNS, capitals"), rule: RStringRuleValidatorRule.RULE_CAP_DNS_NAME },
        { name: qsTr("Hexadecimal"), rule: RStringRuleValidatorRule.RULE_HEX },
        { name: qsTr("Password"), rule: RStringRuleValidatorRule.RULE_PASSWORD },
        { name: qsTr("A letter, 3 digits"), rule: RStringRuleValidatorRule.RULE_PATTERN },
    ]
    property int current: 4

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    Flow {
        width: parent.width
        spacing: theme.dp(4)

        // qmllint disable unqualified
        Repeater {
            model: root.rules

            RButton {
                required property int index
                required property var modelData

                width: theme.dp(120)
                text: modelData.name
                selected: root.current === index
                onClicked: root.current = index
            }
        }
        // qmllint enable unqualified
    }
    ValidatorSample {
        width: parent.width
        title: root.rules[root.current].name
        text: "aux."
        validator: RStringRuleValidator {
            rule: root.rules[root.current].rule
            maximumLength: 32
            pattern: "[A-Z][0-9]{3}"
        }
    }
}
