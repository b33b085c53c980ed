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
        <translation>Карта разорвала соединение.</translation>
    </message>
    <message>
        <source>The card&apos;s reply has no end.</source>
        <translation>Ответ карты не завершён.</translation>
    </message>
    <message>
        <source>The card did not answer in time.</source>
        <translation>Карта не ответила вовремя.</translation>
    </message>
</context>
<context>
    <name>DirCopier</name>
    <message>
        <source>Another copy is still running.</source>
        <translation>Предыдущее копирование ещё не закончено.</translation>
    </message>
    <message>
        <source>The copying program could not be started.</source>
        <translation>Не удалось запустить программу копирования.</translation>
    </message>
    <message>
        <source>The copying program did not understand its orders.</source>
        <translation>Программа копирования получила неверные параметры.</translation>
    </message>
    <message>
        <source>The parts of the copying program do not fit together.</source>
        <translation>Части программы копирования несовместимы.</translation>
    </message>
    <message>
        <source>What is to be copied, or the place for it, is not there.</source>
        <translation>Не найдены исходные файлы или папка для копии.</translation>
    </message>
    <message>
        <source>The copying program cannot do what it was asked for.</source>
        <translation>Программа копирования не поддерживает требуемое действие.</translation>
    </message>
    <message>
        <source>The parts of the copying program could not begin to talk.</source>
        <translation>Части программы копирования не смогли начать обмен данными.</translation>
    </message>
    <message>
        <source>The copying program cannot write its log.</source>
        <translation>Программа копирования не может вести журнал.</translation>
    </message>
    <message>
        <source>A connection broke while copying.</source>
        <translation>При копировании прервалась связь.</translation>
    </message>
    <message>
        <source>The drive is full, cannot be written, or did not take all the data.</source>
        <translation>Накопитель заполнен, защищён от записи или принял не все данные.</translation>
    </message>
    <message>
        <source>The copying program lost its data stream.</source>
        <translation>Сбой в потоке данных программы копирования.</translation>
    </message>
    <message>
        <source>The copying program cannot tell what it does.</source>
        <translation>Программа копирования не может сообщить о своей работе.</translation>
    </message>
    <message>
        <source>The parts of the copying program lost each other.</source>
        <translation>Части программы копирования потеряли связь друг с другом.</translation>
    </message>
    <message>
        <source>The copy was ended before it was complete.</source>
        <translation>Копирование прервано до завершения.</translation>
    </message>
    <message>
        <source>A part of the copying program could not be waited for.</source>
        <translation>Не удалось дождаться завершения части программы копирования.</translation>
    </message>
    <message>
        <source>There was not enough memory to copy.</source>
        <translation>Для копирования не хватило памяти.</translation>
    </message>
    <message>
        <source>Some files could not be copied.</source>
        <translation>Некоторые файлы не удалось скопировать.</translation>
    </message>
    <message>
        <source>Some files vanished before they could be copied.</source>
        <translation>Некоторые файлы исчезли до того, как были скопированы.</translation>
    </message>
    <message>
        <source>The copying program would have had to delete too much.</source>
        <translation>Программе копирования пришлось бы удалить слишком много.</translation>
    </message>
    <message>
        <source>The copy took too long.</source>
        <translation>Копирование заняло слишком много времени.</translation>
    </message>
    <message>
        <source>The other side of the copy took too long to answer.</source>
        <translation>Другая сторона слишком долго не отвечала.</translation>
    </message>
    <message>
        <source>The copy failed for an unknown reason.</source>
        <translation>Копирование не удалось по неизвестной причине.</translation>
    </message>
    <message>
        <source>(rsync: exit code %1)</source>
        <translation>(rsync: код завершения %1)</translation>
    </message>
</context>
<context>
    <name>FileContent</name>
    <message>
        <source>This file cannot be read.</source>
        <translation>Этот файл не удаётся прочитать.</translation>
    </message>
    <message>
        <source>This picture is damaged.</source>
        <translation>Это изображение повреждено.</translation>
    </message>
    <message>
        <source>This picture is too large to be shown: %1 x %2 points.</source>
        <translation>Изображение слишком велико для показа: %1 × %2 пикс.</translation>
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
        <translation>Это не текст, показаны его первые байты.</translation>
    </message>
</context>
<context>
    <name>FlashDialog</name>
    <message>
        <source>Do you want to copy all saved reports and trace files to flash?

 They will be saved to &quot;%1&quot; folder of
 a root directory of your flash card.

 All following reports and trace files will be saved to device
 as well as to flash card.</source>
        <translation>Скопировать все сохранённые отчёты и рефлектограммы
 на флеш-накопитель?

 Они будут сохранены в папке «%1»
 корневого каталога накопителя.

 Все последующие отчёты и рефлектограммы будут сохраняться
 и в приборе, и на накопителе.</translation>
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
    <name>FlashManager</name>
    <message>
        <source>Error: </source>
        <translation>Ошибка: </translation>
    </message>
    <message>
        <source>USB mass-storage device is plugged out</source>
        <translation>USB-накопитель извлечён</translation>
    </message>
    <message>
        <source>incorrect invocation or permissions</source>
        <translation>неверный вызов или недостаточно прав</translation>
    </message>
    <message>
        <source>system error (out of memory, cannot fork, no more loop devices)</source>
        <translation>системная ошибка (нет памяти, не удалось создать процесс или нет свободных loop-устройств)</translation>
    </message>
    <message>
        <source>internal mount bug</source>
        <translation>внутренняя ошибка команды mount</translation>
    </message>
    <message>
        <source>user interrupt</source>
        <translation>прервано пользователем</translation>
    </message>
    <message>
        <source>problems writing or locking /etc/mtab</source>
        <translation>не удаётся записать или заблокировать /etc/mtab</translation>
    </message>
    <message>
        <source>mount failure</source>
        <translation>не удалось подключить файловую систему</translation>
    </message>
    <message>
        <source>some mount succeeded</source>
        <translation>подключены не все файловые системы</translation>
    </message>
</context>
<context>
    <name>FlashSpy</name>
    <message>
        <source>Only one flash card can be used. Please, remove currently installed</source>
        <translation>Можно использовать только один флеш-накопитель. Извлеките уже установленный</translation>
    </message>
    <message>
        <source>Error %1:</source>
        <translation>Ошибка %1:</translation>
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
    <message>
        <source>No functions are configured for this instrument</source>
        <translation>Для этого прибора не задано ни одной функции</translation>
    </message>
    <message>
        <source>They are listed in zr-launcher.conf, section [plugins].</source>
        <translation>Они перечисляются в файле zr-launcher.conf, раздел [plugins].</translation>
    </message>
    <message>
        <source>No settings are configured for this instrument</source>
        <translation>Для этого прибора не задано ни одной настройки</translation>
    </message>
    <message>
        <source>No functions are configured for this card</source>
        <translation>Для этой карты не задано ни одной функции</translation>
    </message>
    <message>
        <source>They are listed in zr-launcher.conf, section [plugins], key &quot;%1&quot;.</source>
        <translation>Они перечисляются в файле zr-launcher.conf, раздел [plugins], ключ «%1».</translation>
    </message>
    <message>
        <source>Functions that could not be loaded: %1</source>
        <translation>Не загружено функций: %1</translation>
    </message>
    <message>
        <source>The launcher&apos;s log says why.</source>
        <translation>Причины записаны в журнале программы.</translation>
    </message>
</context>
<context>
    <name>LeftOutNote</name>
    <message>
        <source>A plug-in was left out</source>
        <translation>Подключаемый модуль отключён</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Отключён: %1</translation>
    </message>
    <message>
        <source>Nothing more is known about it.</source>
        <translation>Больше о нём ничего не известно.</translation>
    </message>
    <message>
        <source>The program crashed in %1, %2 times within a minute. It is tried again the next time the instrument is switched on.</source>
        <translation>Сбоев программы в модуле %1 за минуту: %2. При следующем включении прибора модуль будет загружен снова.</translation>
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
    <name>NightPlugin</name>
    <message>
        <source>Night colours</source>
        <translation>Ночные цвета</translation>
    </message>
</context>
<context>
    <name>NoticeWindow</name>
    <message>
        <source>Save report</source>
        <translation>Сохранить отчёт</translation>
    </message>
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
    <name>QAbstractSocket</name>
    <message>
        <source>Connection refused</source>
        <translation>в соединении отказано</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>истекло время ожидания соединения</translation>
    </message>
    <message>
        <source>Host not found</source>
        <translation>узел не найден</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>сеть недоступна</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>истекло время ожидания</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>удалённый узел закрыл соединение</translation>
    </message>
</context>
<context>
    <name>QHostInfo</name>
    <message>
        <source>Unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
</context>
<context>
    <name>QHostInfoAgent</name>
    <message>
        <source>Host not found</source>
        <translation>узел не найден</translation>
    </message>
    <message>
        <source>Temporary error</source>
        <translation>временная ошибка</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No space left on device</source>
        <translation>на накопителе нет места</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>нет такого файла или папки</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>доступ запрещён</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>открыто слишком много файлов</translation>
    </message>
</context>
<context>
    <name>QLocalSocket</name>
    <message>
        <source>%1: Connection error</source>
        <translation>%1: ошибка соединения</translation>
    </message>
    <message>
        <source>%1: Connection refused</source>
        <translation>%1: в соединении отказано</translation>
    </message>
    <message>
        <source>%1: Invalid name</source>
        <translation>%1: неверное имя</translation>
    </message>
    <message>
        <source>%1: Remote closed</source>
        <translation>%1: соединение закрыто другой стороной</translation>
    </message>
    <message>
        <source>%1: Socket access error</source>
        <translation>%1: нет доступа к сокету</translation>
    </message>
    <message>
        <source>%1: Socket operation timed out</source>
        <translation>%1: истекло время ожидания</translation>
    </message>
    <message>
        <source>%1: Socket resource error</source>
        <translation>%1: не хватает ресурсов для сокета</translation>
    </message>
    <message>
        <source>%1: Unknown error %2</source>
        <translation>%1: неизвестная ошибка %2</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Подробнее...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Скрыть подробности...</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Connection refused</source>
        <translation>в соединении отказано</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>истекло время ожидания соединения</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>узел недоступен</translation>
    </message>
    <message>
        <source>Network error</source>
        <translation>ошибка сети</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>сеть недоступна</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>доступ запрещён</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>удалённый узел закрыл соединение</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>неизвестная ошибка</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Сохранить всё</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Да для &amp;всех</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Н&amp;ет для всех</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>По умолчанию</translation>
    </message>
</context>
<context>
    <name>QSerialPort</name>
    <message>
        <source>Device disappeared from the system</source>
        <translation>устройство исчезло из системы</translation>
    </message>
    <message>
        <source>Device is already open</source>
        <translation>устройство уже открыто</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>нет прав на создание файла блокировки</translation>
    </message>
    <message>
        <source>Permission error while locking the device</source>
        <translation>нет прав на блокировку устройства</translation>
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
        <translation>Период обновления показаний окна «Система»</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 секунда</translation>
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
        <translation>Занято, %</translation>
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
