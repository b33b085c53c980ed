<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>LauncherWindow</name>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>ИКМ</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Сигнализация</translation>
    </message>
    <message>
        <source>Datacom</source>
        <translation>Передача данных</translation>
    </message>
    <message>
        <source>OTDR</source>
        <translation>Рефлектометр</translation>
    </message>
    <message>
        <source>GbE</source>
        <translation>GbE</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Network
Tools</source>
        <translation>Сетевые
средства</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Battery level indication.</source>
        <translation>Уровень заряда батареи.</translation>
    </message>
    <message>
        <source>Loads settings</source>
        <translation>Открывает настройки</translation>
    </message>
    <message>
        <source>Information about settings and measurements</source>
        <translation>Сведения о настройках и измерениях</translation>
    </message>
</context>
</TS>
