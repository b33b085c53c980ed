<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Amounts</name>
    <message>
        <source>%1 B</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>занято %1 из %2</translation>
    </message>
    <message>
        <source>%1 bit/s</source>
        <translation>%1 бит/с</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 кбит/с</translation>
    </message>
    <message>
        <source>%1 Mbit/s</source>
        <translation>%1 Мбит/с</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Гбит/с</translation>
    </message>
</context>
<context>
    <name>BatteryIndicator</name>
    <message>
        <source>min</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>с</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Charge level:</source>
        <translation>Уровень заряда:</translation>
    </message>
    <message>
        <source>Remaining time:</source>
        <translation>Осталось:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Заряжается</translation>
    </message>
    <message>
        <source>Battery is absent</source>
        <translation>Батареи нет</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>charge level</comment>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Unknown</source>
        <comment>remaining time</comment>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Charge Level:</source>
        <translation>Уровень заряда:</translation>
    </message>
</context>
<context>
    <name>CardController</name>
    <message>
        <source>Card %1, number %2, command &quot;%3&quot;</source>
        <translation>Карта %1, номер %2, команда «%3»</translation>
    </message>
</context>
<context>
    <name>CardsManager</name>
    <message>
        <source>Sorry, card type %1 is unvalid</source>
        <translation>Тип карты %1 не поддерживается</translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>&quot;%1&quot; is not the address of a card.</source>
        <translation>«%1» не является адресом карты.</translation>
    </message>
    <message>
        <source>A command is one line.</source>
        <translation>Команда должна занимать одну строку.</translation>
    </message>
    <message>
        <source>The card does not answer.</source>
        <translation>Карта не отвечает.</translation>
    </message>
    <message>
        <source>The card cannot be reached: %1.</source>
        <translation>Нет связи с картой: %1.</translation>
    </message>
    <message>
        <source>The card closed the line.</source>
        <translation>Карта закрыла линию.</translation>
    </message>
    <message>
        <source>The card&apos;s reply has no end.</source>
        <translation>Ответ карты не имеет конца.</translation>
    </message>
    <message>
        <source>The card did not answer in time.</source>
        <translation>Карта не ответила вовремя.</translation>
    </message>
</context>
<context>
    <name>FileContent</name>
    <message>
        <source>This file cannot be read.</source>
        <translation>Этот файл не читается.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Это изображение повреждено.</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: %1 x %2 points.</source>
        <translation>Изображение слишком велико для показа: %1 x %2 точек.</translation>
    </message>
    <message>
        <source>The file is long; its beginning is shown.</source>
        <translation>Файл длинный, показано его начало.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>This is not a text; its first bytes are shown.</source>
        <translation>Это не текст; показаны первые байты.</translation>
    </message>
</context>
<context>
    <name>InterfacesModel</name>
    <message>
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Адреса</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Принято</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Передано</translation>
    </message>
</context>
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
<context>
    <name>NetworkPlugin</name>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
</context>
<context>
    <name>NetworkStatus</name>
    <message>
        <source>Network:</source>
        <translation>Сеть:</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>Нет адреса</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Up</source>
        <translation>Работает</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Нет связи</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выключен</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>Нет адреса</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
</context>
<context>
    <name>NetworkWindow</name>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you really mean to power off device?</source>
        <translation>Вы действительно хотите выключить прибор?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>QuestionPanel</name>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>RefreshPlugin</name>
    <message>
        <source>Refresh rate</source>
        <translation>Период обновления</translation>
    </message>
</context>
<context>
    <name>RefreshWindow</name>
    <message>
        <source>Refresh rate</source>
        <translation>Период обновления</translation>
    </message>
    <message>
        <source>Read the figures of the System window anew every</source>
        <translation>Обновлять показания окна «Система» каждые</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 секунду</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 секунды</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 секунд</translation>
    </message>
</context>
<context>
    <name>ReportListPage</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>Отчётов пока нет</translation>
    </message>
    <message>
        <source>The reports cannot be listed: %1</source>
        <translation>Список отчётов недоступен: %1</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Файлов: %1</translation>
    </message>
    <message>
        <source>%1, free: %2</source>
        <translation>%1, свободно: %2</translation>
    </message>
</context>
<context>
    <name>ReportsModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
</context>
<context>
    <name>ReportsPlugin</name>
    <message>
        <source>Reports</source>
        <translation>Отчёты</translation>
    </message>
</context>
<context>
    <name>ReportsWindow</name>
    <message>
        <source>Reports</source>
        <translation>Отчёты</translation>
    </message>
    <message>
        <source>Delete this file?</source>
        <translation>Удалить этот файл?</translation>
    </message>
    <message>
        <source>Not deleted: %1</source>
        <translation>Не удалено: %1</translation>
    </message>
</context>
<context>
    <name>SoundPlugin</name>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
</context>
<context>
    <name>StorageModel</name>
    <message>
        <source>File system</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Занятость</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Свободно</translation>
    </message>
</context>
<context>
    <name>SystemFacts</name>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Ядро</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Имя узла</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Процессор</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>Home storage</source>
        <translation>Накопитель данных</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Время работы</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 сут %2</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
</context>
<context>
    <name>SystemKeeper</name>
    <message>
        <source>Report not saved: %1</source>
        <translation>Отчёт не сохранён: %1</translation>
    </message>
    <message>
        <source>Report saved: %1</source>
        <translation>Отчёт сохранён: %1</translation>
    </message>
</context>
<context>
    <name>SystemPlugin</name>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
</context>
<context>
    <name>SystemReport</name>
    <message>
        <source>System report</source>
        <translation>Отчёт о системе</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Файловые системы</translation>
    </message>
    <message>
        <source>%1: %2, %3 free (%4, %5)</source>
        <translation>%1: %2, свободно %3 (%4, %5)</translation>
    </message>
</context>
<context>
    <name>SystemStatus</name>
    <message>
        <source>Load</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>SystemWindow</name>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Накопитель</translation>
    </message>
</context>
<context>
    <name>WarningWindow</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
</TS>
