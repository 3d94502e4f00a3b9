<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="zh_CN">
<context>
    <name>CommandRows</name>
    <message>
        <source>命令,数据长度,Byte0
命令号(Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</source>
        <translation>Comando,Tamanho dos dados,Byte0
N.º do comando (Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</translation>
    </message>
</context>
<context>
    <name>CustomTabBar</name>
    <message>
        <source>选项卡</source>
        <translation>Separadores</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Controlo deslizante</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Dispositivos virtuais</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Ligar ou desligar dispositivos virtuais:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Depuração do dispositivo Orbe Studio</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Catálogo de comandos</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Nome do dispositivo: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Versão do firmware do teclado: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Versão do firmware do recetor: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Versão atual: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Procurar atualização do firmware do teclado</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Procurar atualização do firmware do recetor</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutoriais</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Acerca da Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Definições das teclas</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Definições dos switches magnéticos</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Definições de macro</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Definições de iluminação</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Memória 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Memória 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Memória 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Memória 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Emparelhar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Repor predefinições</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibrar curso</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Definições de luz</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Bateria restante</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Iniciar este programa com o computador</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Mostrar janela</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Ocultar janela</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Definições do sistema</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Procurar dispositivos</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Os meus dispositivos</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Tem a certeza de que quer sair do controlador ORBE?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>A procurar dispositivos</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Deslocar para a esquerda</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Deslocar para a direita</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Faixa anterior</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Faixa seguinte</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Reproduzir/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Leitor multimédia</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Correio</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Brilho do ecrã +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Brilho do ecrã -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Chamar a Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Mudar método de introdução</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Bloqueio Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Bloquear ecrã</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Tecla R-Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>DPI-Loop</translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation>DPI+</translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation>DPI-</translation>
    </message>
    <message>
        <source>DPI-Shift</source>
        <translation>DPI-Shift</translation>
    </message>
    <message>
        <source>电源</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Suspender</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Despertar</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Profile-Value</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profile+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profile-</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Profile-Loop</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profile-1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profile-2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profile-3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profile-4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profile-5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>Tecla L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Repor definições de fábrica</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Bloquear Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Mudar para Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mudar para Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Mudar de sistema</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Ver bateria</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Alternar WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Alternar camada Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Poupança de energia</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Alternar APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Retroiluminação lig./desl.</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Ciclo de efeitos</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Efeito +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Efeito -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Ciclo de brilho</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Brilho da luz +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Brilho da luz -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Ciclo de velocidade</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Velocidade da luz -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Velocidade da luz +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Ciclo de direção</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Luz para a esquerda</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Luz para a direita</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Ciclo de cores</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Cor da luz +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Cor da luz -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Usar imagem 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Usar imagem 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Usar imagem 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Usar imagem 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Usar imagem 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Usar imagem</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Luz lateral lig./desl.</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Ciclo de brilho lateral</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Ciclo de velocidade lateral</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Velocidade lateral +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Velocidade lateral -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Ciclo de cores lateral</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Cor lateral +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Cor lateral -</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>Bluetooth 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>Bluetooth 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>Bluetooth 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>Com fios</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Com fios-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Emparelhamento 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Emparelhamento Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Tecla Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Tecla Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clique esquerdo</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clique direito</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clique central</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Rato avançar</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Rato recuar</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Roda para a esquerda</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Roda para a direita</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Roda para cima</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Roda para baixo</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Deslocar para cima</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Deslocar para baixo</translation>
    </message>
    <message>
        <source>XUP</source>
        <translation>XUP</translation>
    </message>
    <message>
        <source>XDOWN</source>
        <translation>XDOWN</translation>
    </message>
    <message>
        <source>YUP</source>
        <translation>YUP</translation>
    </message>
    <message>
        <source>YDOWN</source>
        <translation>YDOWN</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Definições de macro</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Função</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Rato</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinação</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Caixa de diálogo</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Teclado no ecrã</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Tecla selecionada</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Tecla modificada</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Tecla desativada</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Ativar tecla</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Desativar tecla</translation>
    </message>
</context>
<context>
    <name>ModuleLangMenu</name>
    <message>
        <source>中文简体</source>
        <translation>中文简体</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation>中文繁体</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Русский</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Tiếng Việt</source>
        <translation>Tiếng Việt</translation>
    </message>
    <message>
        <source>Português</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>ภาษาไทย</source>
        <translation>ภาษาไทย</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Svenska</source>
        <translation>Svenska</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Türkçe</source>
        <translation>Türkçe</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Roda de valores</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Guia Orbe 7090: macros</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Interruptor</translation>
    </message>
</context>
</TS>
