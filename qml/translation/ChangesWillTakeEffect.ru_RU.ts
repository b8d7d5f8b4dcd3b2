<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ChangesWillTakeEffect</name>
    <message>
        <source>Changes will take effect at the next start</source>
        <translation>Действует со следующего запуска</translation>
    </message>
</context>
</TS>
